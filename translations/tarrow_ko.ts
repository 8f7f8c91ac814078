<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>환경설정을 저장할 수 없습니다. 홈 폴더의 여유 공간과 권한을 확인하십시오. 변경 사항은 프로그램을 종료할 때까지 적용됩니다.</translation>
    </message>
</context>
<context>
    <name>AlertorClass</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation>Tarrow Alertor</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>메뉴(&amp;M)</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>트레이 아이콘과 이 창의 메뉴를 엽니다(F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>VRAM 캐시 사용량: %1% RAM 캐시 사용량: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>입력 감마</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>출력 감마</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>대비</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>입력 레벨 하한</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>입력 레벨 상한</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>출력 레벨 하한</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>출력 레벨 상한</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>소프트 클립</translation>
    </message>
</context>
<context>
    <name>CalibrationRow</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>%1에 연결 중…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>%1에 연결되었습니다. %2 사용자의 로그인이 거부되는지 기다리는 중…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>%1에 연결되고 %2 사용자로 로그인했습니다. 2초 안에 거부되지 않았습니다.</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>%1에 연결되었지만 %2 사용자의 로그인이 거부되었습니다. 로그인 이름과 암호를 확인하십시오.</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>%1 이름을 찾을 수 없습니다. 주소를 확인하십시오.</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>%1에서 연결을 받는 프로그램이 없습니다. 포트와 Dispatcher의 실행 여부를 확인하십시오.</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>%1에서 10초 안에 응답이 없습니다. 주소를 확인하십시오.</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>%1에서 응답하는 것은 Dispatcher가 아닙니다. 포트를 확인하십시오.</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>%1에 연결되었지만 %2 사용자의 로그인 후 연결이 끊겼습니다.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>%1에 연결할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD 색상</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1(%2 없음)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>환경설정(&amp;C)</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>환경설정을 엽니다: Dispatcher의 주소와 로그인할 사용자</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>아직 이벤트가 없습니다.
렌더팜에서 보내는 작업 알림이 여기에 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>열(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>정렬 기준(&amp;S)</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>도착 순서</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>재설정(&amp;R)</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>서비스</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>경보</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation>청크</translation>
    </message>
    <message>
        <source>Output path</source>
        <translation>출력 경로</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>서비스</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>미확인</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>방금 확인됨</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>포트는 1에서 65535 사이의 숫자입니다</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>바이트 수를 숫자로만 입력하십시오</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>감마는 0보다 큰 숫자입니다(예: 2.2)</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>컴퓨터의 이름 또는 주소를 입력하십시오</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>연결(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>나중에(&amp;L)</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>완료(오류 있음)</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>완료(경고 있음)</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>서비스 활동 또는 경보</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>연결 설정</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>렌더팜의 Dispatcher 주소와 로그인할 사용자를 입력하십시오. 모르는 경우 렌더팜 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>서버(&amp;S):</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>서버</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>포트(&amp;P):</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>로그인 이름(&amp;G):</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>로그인 이름</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>암호(&amp;W):</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>연결 테스트(&amp;T)</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>테스트할 때는 아무것도 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>시스템 트레이의 아이콘은 연결 상태와 아직 보지 않은 가장 심각한 이벤트를 번갈아 표시합니다:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>픽셀 형식: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>픽셀 형식: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>픽셀 형식: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>픽셀 형식: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>픽셀 형식: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>픽셀 형식: 알 수 없음</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>비트 형식: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>비트 형식: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>비트 형식: 휘도</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>비트 형식: 알 수 없음</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>파일: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>파일 형식: %1, 딥</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>파일 형식: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>이미지 크기: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>레이어: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>채널당 샘플 수: %1</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>이미지 선택</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>이미지 뷰어 - 작업 %1(%2) 청크 ID %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>이미지 뷰어 - 작업 %1(%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>이미지 뷰어</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>프레임 경로</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>표시할 파일, 번호가 매겨진 시퀀스 또는 파일 이름 패턴</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>이미지 선택</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>다시 불러오기</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>디스크에서 프레임을 다시 읽습니다</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>화면 전체에 이미지만 표시합니다</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>모든 채널</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>빨강 채널</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>녹색 채널</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>파랑 채널</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>알파 채널</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>휘도: 빨강, 녹색, 파랑 중 가장 큰 값</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>휘도</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>레이어:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>표시할 파일의 레이어</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>다운샘플링:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>프레임을 보관하고 표시하는 크기</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>이미지를 뷰에 맞춥니다</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>이미지의 1픽셀을 화면의 1픽셀로 표시합니다</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>픽셀 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>체커</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>이미지 뒤의 체커</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>이미지 뒤의 색상</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>합성</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>이미지를 뒤에 있는 내용과 합성합니다</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>프리멀티플라이</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>파일에 지정된 경우 색상을 알파가 곱해진 것으로 처리합니다</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>이미지 위에 겹쳐 표시되는 정보</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD 색상</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>정보의 색상</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>기본값으로 저장</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>표시 설정을 기본값으로 저장합니다</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>캘리브레이션</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>이미지 내 세로 위치</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>이미지 내 가로 위치</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>현재 파일의 캘리브레이션</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>기본값으로 재설정</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>기본 캘리브레이션</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>캘리브레이션을 기본값으로 저장합니다</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>캐시의 프레임</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>비디오 메모리(녹색)와 주 메모리(노란색)에 보관된 프레임</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>타임라인</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>드래그하여 프레임을 선택합니다. Shift는 해당 청크를, Ctrl은 프레임을 마크하며 Alt를 함께 누르면 마크를 해제합니다</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>마크된 프레임</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>마크된 청크(주황색)와 프레임(노란색)</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>시작:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>재생할 첫 프레임</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>끝:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>재생할 마지막 프레임</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>간격:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>프레임 간격</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>첫 프레임 (↑)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>첫 프레임</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>이전 프레임 (←)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>이전 프레임</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>재생 (스페이스)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>다음 프레임 (→)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>다음 프레임</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>마지막 프레임 (↓)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>마지막 프레임</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>현재 프레임</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1프레임</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>초당 프레임 수</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>재생 시 초당 프레임 수</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>프레임 마크</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>현재 프레임을 마크하거나 마크를 해제합니다</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0프레임</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>마크된 프레임. 오른쪽 버튼으로 복사합니다</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>마크된 프레임을 다시 대기열에 넣기</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>마크 지우기</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>모든 마크를 제거합니다</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>청크 마크</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>현재 프레임의 청크를 마크하거나 마크를 해제합니다</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>청크 0개</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>마크된 청크. 오른쪽 버튼으로 복사합니다</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>마크된 청크를 다시 대기열에 넣기</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>청크 다운로드</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>작업:</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>청크:</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>불러오기 진행률</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>실시간 스크러빙</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>타임라인을 드래그하는 동안 프레임을 불러옵니다</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>그래픽 카드가 HALF(반정밀도 부동소수점) 값을 지원하지 않습니다. 이미지 지원이나 정확도가 제한될 수 있습니다!</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>측면 패널</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>캘리브레이션과 파일 정보를 표시하거나 숨깁니다</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>여기에 이미지나 폴더를 끌어다 놓거나 Ctrl+O로 여십시오</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>실제로 표시되는 초당 프레임 수</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>프레임용 메모리 사용량</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>시퀀스의 프레임 수</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>청크 %2개 중 %1개 손상됨</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1% 기록됨</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>LinkWords</name>
    <message>
        <source>Not a Dispatcher: it sent %1</source>
        <translation>Dispatcher가 아닙니다. %1 데이터를 보냈습니다</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>Dispatcher의 데이터 스트림이 손상되었습니다</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>%1 찾는 중</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>%1에 %2 사용자로 연결 중</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>%1에 %2 사용자로 연결됨</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>%1에서 %2 사용자의 로그인을 거부했습니다</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>%1에 %2 사용자로 연결되지 않음</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>다음 시도: %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>%1부터 %2까지 연결이 끊겼습니다. 그동안의 이벤트는 다시 전송되지 않습니다</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>1 MiB 초과</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>손상됨</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>Dispatcher가 읽지 않음</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>Dispatcher로 보내는 메시지 하나가 1 MiB를 초과함</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Dispatcher와 주고받다 손실된 메시지(%1): %2개(%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>선택 항목 확인(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>출력 폴더 열기(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>프레임 열기(&amp;F)</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>외부 프로그램으로 프레임 열기(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>선택 항목 제거(&amp;R)	Del</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>모두 제거</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>파일을 찾을 수 없음: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>손상된 파일: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>표시할 수 없는 파일: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>OpenGL에 비해 너무 큼: 1/%1 크기로 표시됨</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL이 시작되지 않습니다.</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL에서 이미지를 그리는 셰이더를 컴파일할 수 없습니다. 원인은 로그에 있습니다.</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL 메모리가 부족합니다. 다운샘플링을 더 높게 선택하십시오.</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>OpenGL에 비해 너무 큽니다.</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>이 OpenGL은 이런 종류의 샘플을 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>크기에 비해 샘플이 너무 적습니다.</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>읽기 권한이 없습니다.</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>뷰어가 읽을 수 있는 형식의 이미지가 아닙니다.</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>이미지가 이 컴퓨터의 메모리에 비해 너무 큽니다.</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>뷰어가 읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>문제: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1초 앞까지 준비됨</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>Copy marked frames</source>
        <translation>마크된 프레임 복사</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>마크된 청크 복사</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>마크된 청크의 프레임 복사</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1프레임</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>청크 %1개</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>현재 마크를 제거하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1(빌드 %2)

로그: %3</translation>
    </message>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>Alertor를 종료하시겠습니까?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Dispatcher가 Alertor의 연결을 거부했습니다. Alertor 환경설정에서 로그인 이름과 암호를 확인하십시오!</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>연결 설정(&amp;S)…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1. 클릭하면 이것만, 다시 클릭하면 모두 표시합니다</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>미확인 오류: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>미확인 경고: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>미확인 성공: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>미확인 서비스 이벤트: %1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialog</name>
    <message>
        <source>defaultSkinnedDialog</source>
        <translation>defaultSkinnedDialog</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>현재 크기와 위치를 기본값으로 저장</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>현재 크기와 위치를 이 대화 상자의 기본값으로 저장하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>두 번 클릭: 창을 이전 크기로 복원</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>드래그: 창 이동. 두 번 클릭: 최대화</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>취소(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>중단(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>확인(&amp;O)</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>질문</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>출력 폴더 %1을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>선택한 프레임을 표시할 이미지 뷰어를 실행할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>초기화 중...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>템플릿 검색 중...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - 릴리스 빌드 %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>지금 연결(&amp;N)</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>즉시 Dispatcher에 연결을 시도합니다</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>템플릿 %1 불러오는 중...</translation>
    </message>
</context>
<context>
    <name>TransportControls</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>시작:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>끝:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1프레임</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>정지 (스페이스)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>재생 (스페이스)</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation>Tarrow Alertor</translation>
    </message>
    <message>
        <source>Tarrow Alertor (not connected)</source>
        <translation>Tarrow Alertor(연결되지 않음)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>새 이벤트가 있습니다!</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor가 백그라운드에서 실행 중입니다.
이 아이콘을 오른쪽 클릭하면 메뉴가 열리고, 두 번 클릭하면 프로그램 창이 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>창 표시(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>미확인 이벤트 확인(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>음소거(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>이미지 뷰어 열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>환경설정(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>GPU가 OpenGL을 지원하지 않습니다! 이미지 뷰어를 사용할 수 없습니다!</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>정보(&amp;B)</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>버전과 로그 위치를 표시합니다</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>고정</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>고정 해제</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>오디오 파일 (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>실행 파일 (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%2 중 %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>파일이 없습니다</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>재생할 수 있는 WAV 파일이 아닙니다</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>사운드 장치가 없습니다</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>프로그램의 일부가 없습니다. 다시 설치하십시오</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>%1을(를) 재생할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Alertor 환경설정</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>알림 필터</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>작업 시작</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>청크 시작</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>작업 완료(오류 있음)</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>작업 완료(경고 있음)</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>작업 완료(성공)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>청크 완료(오류 있음)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>청크 완료(경고 있음)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>청크 완료(성공)</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>서비스 활동</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>사운드</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>오류 시 사운드 재생</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>오류용 사운드 파일</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>오류용 사운드 파일 선택</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>경고 시 사운드 재생</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>경고용 사운드 파일</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>경고용 사운드 파일 선택</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>성공 시 사운드 재생</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>성공용 사운드 파일</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>성공용 사운드 파일 선택</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>항목 시작 시 사운드 재생</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>항목 시작용 사운드 파일</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>항목 시작용 사운드 파일 선택</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>서비스 이벤트 시 사운드 재생</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>서비스 이벤트용 사운드 파일</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>서비스 이벤트용 사운드 파일 선택</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>단일 프레임 작업</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>이미지 뷰어 모드:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>External</source>
        <translation>외부</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>이미지 뷰어 자동 실행</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>이미지 뷰어 프로그램:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>이미지 뷰어 프로그램</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>이미지 뷰어 프로그램 선택</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>GPU/RAM 뷰어 캐시:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>GPU 뷰어 캐시(바이트)</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>RAM 뷰어 캐시(바이트)</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>EXR/기본 가져오기 감마:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>EXR 가져오기 감마</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>기본 가져오기 감마</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>네트워크 및 동작</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Dispatcher 주소:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Dispatcher 주소</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Alertor 포트:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Alertor 포트</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>로그인 이름:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>로그인 이름</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>디렉터리 서버 인증 건너뛰기</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>풍선 알림 표시(지원되는 경우)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>프로그램 창을 표시할 때 알림 자동 확인</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>목록을 다른 창 위에 유지</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>뷰어</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>오류용 사운드 파일 재생</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>경고용 사운드 파일 재생</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>성공용 사운드 파일 재생</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>항목 시작용 사운드 파일 재생</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>서비스 이벤트용 사운드 파일 재생</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>불완전한 프레임 표시</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>미리 읽기</translation>
    </message>
</context>
</TS>
