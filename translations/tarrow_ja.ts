<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>環境設定を保存できません。ホームフォルダーの空き容量とアクセス権を確認してください。変更はプログラムを終了するまで有効です。</translation>
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
        <translation>イベント</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>メニュー(&amp;M)</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>トレイアイコンとこのウィンドウのメニューを開きます (F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>VRAM キャッシュ使用率: %1% RAM キャッシュ使用率: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>入力ガンマ</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>出力ガンマ</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>入力レベル下限</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>入力レベル上限</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>出力レベル下限</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>出力レベル上限</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>ソフトクリップ</translation>
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
        <translation>%1 に接続しています…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>%1 に接続しました。%2 のログインが拒否されないか確認しています…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>%1 に接続し、%2 としてログインしました。2 秒以内に拒否されませんでした。</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>%1 に接続しましたが、%2 のログインが拒否されました。ログイン名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>%1 という名前が見つかりません。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>%1 で待ち受けているものがありません。ポートと、Dispatcher が動作しているかを確認してください。</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>%1 から 10 秒以内に応答がありませんでした。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>%1 で応答しているのは Dispatcher ではありません。ポートを確認してください。</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>%1 に接続しましたが、%2 のログイン後に切断されました。</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>%1 に接続できません: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD の色</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1 (%2 なし)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>環境設定(&amp;C)</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>環境設定を開きます: Dispatcher の場所とログインするユーザー</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>まだイベントはありません。
レンダーファームからのジョブの通知がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>列(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>受信順</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>アラート</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation>チャンク</translation>
    </message>
    <message>
        <source>Output path</source>
        <translation>出力パス</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>サービス</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>確認済みにしたばかり</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>ポート番号は 1～65535 の範囲で指定してください</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>バイト数を数字だけで入力してください</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>ガンマは 0 より大きい数で指定してください (例: 2.2)</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>コンピューターの名前またはアドレスを入力してください</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>接続(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>完了 (エラーあり)</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>完了 (警告あり)</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>サービスの動作またはアラート</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>接続の設定</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>レンダーファームの Dispatcher の場所と、ログインするユーザーを入力します。わからない場合はファームの管理者に尋ねてください。</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>サーバー(&amp;S):</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>ポート(&amp;P):</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>ログイン名(&amp;G):</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>接続をテスト(&amp;T)</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>テストでは何も保存されません。</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>システムトレイのアイコンは、接続の状態と、まだ見ていない最も重大なイベントを交互に示します:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>ピクセル形式: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>ピクセル形式: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>ピクセル形式: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>ピクセル形式: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>ピクセル形式: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>ピクセル形式: 不明</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>ビット形式: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>ビット形式: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>ビット形式: 輝度</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>ビット形式: 不明</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>ファイル形式: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>画像サイズ: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>レイヤー: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>チャンネルあたりのサンプル数: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>ファイル形式: %1、ディープ</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>イメージビューア - ジョブ %1 (%2) チャンク ID %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>イメージビューア - ジョブ %1 (%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>イメージビューア</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>フレームのパス</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>表示するファイル、連番、またはファイル名パターン</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>フレームをディスクから読み直します</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>画像だけを画面全体に表示します</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>すべてのチャンネル</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>赤チャンネル</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>緑チャンネル</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>青チャンネル</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>アルファチャンネル</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>レイヤー:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>表示するファイルのレイヤー</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>ダウンサンプリング:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>フレームを保持・表示するサイズ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>フィット</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>画像をビューに合わせます</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>画像の 1 ピクセルを画面の 1 ピクセルで表示します</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>等倍 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>チェッカー</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>画像の背後のチェッカー</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>画像の背後の色</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>コンポジット</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>画像を背後のものと合成します</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>プリマルチプライ</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>ファイルに指定がある場合、色をアルファ乗算済みとして扱います</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>画像上の情報表示</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD の色</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>情報表示の色</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>既定として保存</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>表示設定を既定として保存します</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>キャリブレーション</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>画像内の縦位置</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>画像内の横位置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>現在のファイル用のキャリブレーション</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>既定のキャリブレーション</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>キャリブレーションを既定として保存します</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>読み込みの進行状況</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>キャッシュ内のフレーム</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>ビデオメモリ (緑) とメインメモリ (黄) に保持されたフレーム</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>ドラッグでフレームを選びます。Shift でチャンク、Ctrl でフレームをマークし、Alt を加えるとマークを外します</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>マークしたフレーム</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>マークしたチャンク (オレンジ) とフレーム (黄)</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>始:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>再生する最初のフレーム</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>終:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>再生する最後のフレーム</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>間隔:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>フレームの間隔</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>最初のフレーム (↑)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>最初のフレーム</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>前のフレーム (←)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>次のフレーム (→)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>最後のフレーム (↓)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>最後のフレーム</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>現在のフレーム</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 フレーム</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>フレーム/秒</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>再生時のフレーム/秒</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>ライブスクラブ</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>タイムラインのドラッグ中にフレームを読み込みます</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>フレームをマーク</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>現在のフレームをマーク、またはマークを外します</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 フレーム</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>マークしたフレームをキューに入れ直す</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>マークを消去</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>すべてのマークを外します</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>チャンクをマーク</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>現在のフレームのチャンクをマーク、またはマークを外します</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 チャンク</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>マークしたチャンクをキューに入れ直す</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>チャンクをダウンロード</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>ジョブ:</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>チャンク:</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>お使いのグラフィックカードは HALF 浮動小数点値に対応していません。画像の対応や精度が制限される場合があります。</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>輝度: 赤、緑、青の最大値</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>マークしたフレーム。右クリックでコピーできます</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>マークしたチャンク。右クリックでコピーできます</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>サイドパネル</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>キャリブレーションとファイル情報の表示を切り替えます</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>ここに画像かフォルダーをドロップするか、Ctrl+O で開きます</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>実際に表示されているフレーム/秒</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>フレーム用メモリの使用率</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>連番のフレーム数</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%2 チャンク中 %1 チャンクが破損しています</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1% 書き込み済み</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>LinkWords</name>
    <message>
        <source>Not a Dispatcher: it sent %1</source>
        <translation>Dispatcher ではありません: %1 が送られてきました</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>Dispatcher からのデータストリームが破損していました</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>%1 を検索しています</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>%1 に %2 として接続しています</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>%1 に %2 として接続済み</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>%1 が %2 のログインを拒否しました</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>%1 に %2 として接続していません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>次の試行: %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>%1 から %2 まで接続が切れていました。その間のイベントは再送されません</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>1 MiB を超えています</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>Dispatcher が読み取っていません</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>Dispatcher へのメッセージが 1 MiB を超えていました</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Dispatcher との間で失われたメッセージ (%1): %2 件 (%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>選択項目を確認済みにする(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>出力フォルダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>フレームを開く(&amp;F)</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>フレームを外部アプリケーションで開く(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>選択項目を削除(&amp;R)	Del</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>すべて削除</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>ファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>ファイルが破損しています: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>表示できないファイル: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>OpenGL には大きすぎるため、1/%1 の大きさで表示しています</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL が起動しません。</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>画像を描くシェーダーを OpenGL がコンパイルできません。理由はログにあります。</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL のメモリが足りません。ダウンサンプリングを上げてください。</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>OpenGL には大きすぎます。</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>この OpenGL はこの種類のサンプルを表示できません。</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>大きさに対してサンプルが足りません。</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>読み取り権限がありません。</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>ビューアが読める形式の画像ではありません。</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>画像がこのコンピューターのメモリに収まりません。</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>ビューアで読み取れません: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>問題点: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1 秒先まで準備済み</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 フレーム</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 チャンク</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>現在のマークをすべて外しますか?</translation>
    </message>
    <message>
        <source>Copy marked frames</source>
        <translation>マークしたフレームをコピー</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>マークしたチャンクをコピー</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>マークしたチャンクのフレームをコピー</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>Alertor を終了しますか?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Dispatcher が Alertor の接続を拒否しました。Alertor の環境設定でログイン名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1 (ビルド %2)

ログ: %3</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>接続の設定(&amp;S)…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1。クリックするとこれだけを、もう一度クリックするとすべてを表示します</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>未確認のエラー: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>未確認の警告: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>未確認の成功: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>未確認のサービスイベント: %1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <translation>更新</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>現在のサイズと位置を既定にする</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>現在のサイズと位置をこのダイアログの既定にしますか?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>ダブルクリック: ウィンドウを元のサイズに戻します</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>ドラッグ: ウィンドウを移動します。ダブルクリック: 最大化します</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>中止(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>OK(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>出力フォルダー %1 を開けません</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>選択したフレームを表示するイメージビューアを起動できません</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>初期化しています...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>テンプレートを列挙しています...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - リリースビルド %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>今すぐ接続(&amp;N)</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>すぐに Dispatcher への接続を試みます</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>テンプレート %1 を読み込んでいます...</translation>
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
        <translation>始:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>終:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 フレーム</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>停止 (スペース)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
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
        <translation>Tarrow Alertor (未接続)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>新しいイベントがあります。</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor はバックグラウンドで動作しています。
このアイコンを右クリックするとメニュー、ダブルクリックするとアプリケーションが開きます。</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>ウィンドウを表示(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>未確認のイベントを確認済みにする(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>消音(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>イメージビューアを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>環境設定(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>お使いの GPU は OpenGL に対応していません。イメージビューアは使用できません。</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>このプログラムについて(&amp;B)</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>バージョンとログの場所を表示します</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>ロック解除</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>オーディオファイル (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>実行ファイル (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>再生できる WAV ファイルではありません</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>サウンドデバイスがありません</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>プログラムの一部が見つかりません。インストールし直してください</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>%1 を再生できません: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Alertor 環境設定</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>通知フィルター</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>ジョブの開始</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>チャンクの開始</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>ジョブの完了 (エラーあり)</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>ジョブの完了 (警告あり)</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>ジョブの完了 (成功)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>チャンクの完了 (エラーあり)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>チャンクの完了 (警告あり)</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>チャンクの完了 (成功)</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>サービスの動作</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>エラー時に音を鳴らす</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>エラー用サウンドファイル</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>エラー用サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>警告時に音を鳴らす</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>警告用サウンドファイル</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>警告用サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>成功時に音を鳴らす</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>成功用サウンドファイル</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>成功用サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>項目の開始時に音を鳴らす</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>項目開始用サウンドファイル</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>項目開始用サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>サービスイベント時に音を鳴らす</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>サービスイベント用サウンドファイル</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>サービスイベント用サウンドファイルを選択</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>単一フレームのジョブ</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>イメージビューアのモード:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>External</source>
        <translation>外部</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>イメージビューアを自動的に起動</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>イメージビューアアプリケーション:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>イメージビューアアプリケーション</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>イメージビューアアプリケーションを選択</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>GPU/RAM ビューアキャッシュ:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>GPU ビューアキャッシュ (バイト)</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>RAM ビューアキャッシュ (バイト)</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>EXR/既定の読み込みガンマ:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>EXR の読み込みガンマ</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>既定の読み込みガンマ</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>ネットワークと動作</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Dispatcher のアドレス:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Dispatcher のアドレス</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Alertor のポート:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Alertor のポート</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>ログイン名:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>ディレクトリサーバー認証を省略</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>バルーンを表示 (対応環境のみ)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>アプリケーションを前面に出すときに通知を自動で確認済みにする</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>リストを他のウィンドウより手前に表示</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>ビューア</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>エラー用サウンドファイルを再生</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>警告用サウンドファイルを再生</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>成功用サウンドファイルを再生</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>項目開始用サウンドファイルを再生</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>サービスイベント用サウンドファイルを再生</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>不完全なフレームを表示</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>先読み</translation>
    </message>
</context>
</TS>
