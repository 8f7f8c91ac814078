<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>The settings cannot be saved. They hold until the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open output folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build has no integrated image viewer. Choose an external application in the preferences to open frames.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlertorClass</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no system tray: the menu of its icon opens here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pending</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found at path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Composite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HUD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide the calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input gamma:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output gamma:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input level start:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input level end:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output level start:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output level end:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft clip:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QSkinnedDialog</name>
    <message>
        <source>defaultSkinnedDialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarrow Alertor (not connected)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>External</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
