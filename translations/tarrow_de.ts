<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>Die Einstellungen lassen sich nicht speichern: Prüfen Sie den freien Platz und die Zugriffsrechte Ihres persönlichen Ordners. Ihre Änderungen gelten, bis Sie das Programm beenden.</translation>
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
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menü</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>Öffnet das Menü des Symbols im Infobereich und dieses Fensters (F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>VRAM-Cache belegt: %1% RAM-Cache belegt: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>Eingangsgamma</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>Ausgangsgamma</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>Eingangspegel Minimum</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>Eingangspegel Maximum</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>Ausgangspegel Minimum</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>Ausgangspegel Maximum</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>Soft Clip</translation>
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
        <translation>Verbindung zu %1 wird hergestellt …</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>Verbunden mit %1. Es wird gewartet, ob die Anmeldung von %2 abgelehnt wird …</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>Verbunden mit %1 und angemeldet als %2: keine Ablehnung innerhalb von 2 Sekunden.</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>Verbunden mit %1, aber die Anmeldung von %2 wurde abgelehnt. Prüfen Sie Anmeldename und Passwort.</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>Der Name %1 ist nicht bekannt. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>Unter %1 nimmt niemand Verbindungen an. Prüfen Sie den Port und ob der Dispatcher läuft.</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>Keine Antwort von %1 innerhalb von 10 Sekunden. Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>Was unter %1 antwortet, ist kein Dispatcher. Prüfen Sie den Port.</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>Verbunden mit %1, aber die Verbindung wurde nach der Anmeldung von %2 getrennt.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>Keine Verbindung zu %1: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD-Farbe</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1 (kein %2)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>Öffnet die Einstellungen: wo der Dispatcher ist und wer sich anmeldet</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>Es ist noch nichts geschehen.
Was die Renderfarm von Ihren Jobs meldet, erscheint hier.</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>Spa&amp;lten</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>Eingangsreihenfolge</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation>Chunk</translation>
    </message>
    <message>
        <source>Output path</source>
        <translation>Ausgabepfad</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Ausstehend</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>Gerade bestätigt</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>Ein Port ist eine Zahl von 1 bis 65535</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>Geben Sie eine Anzahl Bytes ein, nur mit Ziffern</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>Gamma ist eine Zahl über 0, etwa 2.2</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>Geben Sie den Namen oder die Adresse eines Rechners ein</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Späte&amp;r</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>fertig mit Fehlern</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>fertig mit Warnungen</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>Dienstaktivität oder Alarm</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>Verbindung einrichten</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>Wo ist der Dispatcher der Renderfarm, und wer sind Sie? Fragen Sie, wer die Renderfarm betreibt.</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>&amp;Anmeldename:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>Verbindung &amp;testen</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>Ein Test speichert nichts.</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>Das Symbol im Infobereich zeigt den Stand der Verbindung und im Wechsel damit das schwerwiegendste Ereignis, das Sie noch nicht angesehen haben:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>Pixelformat: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>Pixelformat: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>Pixelformat: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>Pixelformat: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>Pixelformat: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>Pixelformat: unbekannt</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>Bitformat: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>Bitformat: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>Bitformat: Luminanz</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>Bitformat: unbekannt</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>Dateiformat: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>Bildgröße: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Ebenen: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>Samples je Kanal: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>Dateiformat: %1, Deep</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Bilder wählen</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>Bildbetrachter – Job %1 (%2), Chunk-ID %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>Bildbetrachter – Job %1 (%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>Bildbetrachter</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>Pfad der Frames</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>Angezeigte Datei, nummerierte Sequenz oder Namensmuster</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Bilder wählen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>Die Frames neu von der Platte lesen</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>Nur das Bild auf dem ganzen Bildschirm zeigen</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Alle Kanäle</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>Rotkanal</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>Grünkanal</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>Blaukanal</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>Alphakanal</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanz</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Ebene:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>Angezeigte Ebene der Datei</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>Downsampling:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>Größe, in der Frames gehalten und gezeigt werden</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>Das Bild in die Ansicht einpassen</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>Ein Bildpixel ist ein Bildschirmpixel</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>Pixel 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>Schachbrett hinter dem Bild</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>Farbe hinter dem Bild</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composite</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>Das Bild mit dem Hintergrund verrechnen</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>Vormultipliziert</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>Farben als mit Alpha multipliziert behandeln, wenn die Datei es angibt</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>Angaben über dem Bild</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD-Farbe</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>Farbe der Angaben</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Als Standard speichern</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>Die Anzeigeeinstellungen als Standard speichern</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>Senkrechte Position im Bild</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>Waagerechte Position im Bild</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>Kalibrierung für die aktuelle Datei</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Auf Standardwerte</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>Die Standardkalibrierung</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>Die Kalibrierung als Standard speichern</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>Ladefortschritt</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>Frames im Cache</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>Frames im Grafikspeicher (grün) und im Hauptspeicher (gelb)</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>Ziehen wählt einen Frame. Umschalt markiert seinen Chunk, Strg den Frame; mit Alt nehmen sie die Markierung weg</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>Markierte Frames</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>Markierte Chunks (orange) und Frames (gelb)</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>S:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>Erster abgespielter Frame</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>E:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>Letzter abgespielter Frame</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Schritt:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>Schritt zwischen den Frames</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>Erster Frame (Auf)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Erster Frame</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>Voriger Frame (Links)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Voriger Frame</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>Nächster Frame (Rechts)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Nächster Frame</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>Letzter Frame (Ab)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>Letzter Frame</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>Aktueller Frame</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 Frame(s)</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Frames pro Sekunde</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>Frames pro Sekunde beim Abspielen</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>Beim Ziehen anzeigen</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>Frames laden, während die Zeitleiste gezogen wird</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>Frame markieren</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>Den aktuellen Frame markieren oder seine Markierung wegnehmen</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 Frame(s)</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>Markierte Frames neu einreihen</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>Markierungen löschen</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>Alle Markierungen entfernen</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>Chunk markieren</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>Den Chunk des aktuellen Frames markieren oder seine Markierung wegnehmen</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 Chunk(s)</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>Markierte Chunks neu einreihen</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>Chunks herunterladen</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>Job:</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>Chunk:</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>Ihre Grafikkarte unterstützt keine HALF-Gleitkommawerte. Bilder werden vielleicht ungenau oder gar nicht dargestellt!</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>Luminanz: der größte Wert aus Rot, Grün und Blau</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>Markierte Frames; die rechte Maustaste kopiert sie</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>Markierte Chunks; die rechte Maustaste kopiert sie</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>Kalibrierung und Angaben zur Datei zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>Bilder oder einen Ordner hier ablegen oder mit Strg+O öffnen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>Angezeigte Frames pro Sekunde</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>Belegter Anteil des Speichers für Frames</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>Frames der Sequenz</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%1 von %2 Chunks sind beschädigt</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1&#xa0;% geschrieben</translation>
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
        <translation>Kein Dispatcher: er sandte %1</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>Der Datenstrom des Dispatchers war beschädigt</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>%1 wird gesucht</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>Verbindung zu %1 als %2 wird hergestellt</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>Verbunden mit %1 als %2</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>Anmeldung bei %1 als %2 abgelehnt</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>Nicht verbunden mit %1 als %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>Nächster Versuch um %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>Keine Verbindung von %1 bis %2; Ereignisse dieser Zeit werden nicht nachgesandt</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>größer als 1 MiB</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>der Dispatcher liest nicht</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>eine an den Dispatcher war größer als 1 MiB</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Nachrichten vom oder an den Dispatcher verloren um %1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>Auswahl &amp;bestätigen</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>&amp;Ausgabeordner öffnen</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>&amp;Frame(s) öffnen</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>Frame(s) &amp;extern öffnen</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>Auswahl e&amp;ntfernen	Entf</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>Beschädigte Datei: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>Datei kann nicht angezeigt werden: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>Zu groß für OpenGL: in 1/%1 der Größe angezeigt</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL startet nicht.</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL kann die Shader, die Bilder zeichnen, nicht kompilieren. Das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL hat keinen Speicher dafür. Wählen Sie ein stärkeres Downsampling.</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>Sie ist zu groß für OpenGL.</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>Dieses OpenGL kann Samples dieser Art nicht anzeigen.</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>Sie enthält zu wenige Samples für ihre Größe.</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>Sie dürfen sie nicht lesen.</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>Sie ist kein Bild in einem Format, das der Betrachter liest.</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>Ihr Bild ist zu groß für den Speicher dieses Rechners.</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>Der Betrachter kann sie nicht lesen: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>Was nicht stimmt: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1 s voraus</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 Frame(s)</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 Chunk(s)</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>Möchten Sie die aktuellen Markierungen wirklich entfernen?</translation>
    </message>
    <message>
        <source>Copy marked frames</source>
        <translation>Markierte Frames kopieren</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>Markierte Chunks kopieren</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>Frames der markierten Chunks kopieren</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>Möchten Sie den Alertor wirklich beenden?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Der Dispatcher hat die Verbindung des Alertors abgelehnt. Bitte prüfen Sie Anmeldename und Passwort in den Alertor-Einstellungen!</translation>
    </message>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1 (Build %2)

Protokoll: %3</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>Verbindung &amp;einrichten …</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1. Ein Klick zeigt nur diese, ein weiterer wieder alle</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>Ausstehende Fehler: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>Ausstehende Warnungen: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>Ausstehende Erfolge: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>Ausstehende Dienstereignisse: %1</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
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
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>Aktuelle Größe und Position als Standard merken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>Möchten Sie die aktuelle Größe und Position als Standard für diesen Dialog festlegen?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>Doppelklick: Fenster wiederherstellen</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>Ziehen: Fenster verschieben. Doppelklick: maximieren</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>A&amp;bbruch</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>Der Ausgabeordner %1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>Der Bildbetrachter für den gewählten Frame lässt sich nicht starten</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>Initialisierung …</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>Vorlagen werden gesucht …</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - Release-Build %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>Jetzt &amp;verbinden</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>Versucht sofort, sich mit dem Dispatcher zu verbinden</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>Vorlage %1 wird geladen …</translation>
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
        <translation>S:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>E:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 Frame(s)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Anhalten (Leertaste)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
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
        <translation>Tarrow Alertor (nicht verbunden)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>Neues Ereignis!</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor läuft im Hintergrund.
Ein Rechtsklick auf dieses Symbol öffnet das Kontextmenü, ein Doppelklick holt das Programm nach vorn.</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>&amp;Ausstehende Ereignisse bestätigen</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>&amp;Stumm</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>Bildbetrachter ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>Ihre Grafikkarte unterstützt OpenGL nicht! Der Bildbetrachter kann nicht verwendet werden!</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>Übe&amp;r</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>Zeigt die Version und wo das Protokoll liegt</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>Audiodateien (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>Programme (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>sie ist keine abspielbare WAV-Datei</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>es gibt kein Audiogerät</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>ein Teil des Programms fehlt; installieren Sie es neu</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>%1 lässt sich nicht abspielen: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Alertor-Einstellungen</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>Benachrichtigungsfilter</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>Start eines Jobs</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>Start eines Chunks</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>Job fertig mit Fehlern</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>Job fertig mit Warnungen</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>Job erfolgreich fertig</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>Chunk fertig mit Fehlern</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>Chunk fertig mit Warnungen</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>Chunk erfolgreich fertig</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>Dienstaktivitäten</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>Klang bei Fehlern</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>Klangdatei für Fehler</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>Klangdatei für Fehler wählen</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>Klang bei Warnungen</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>Klangdatei für Warnungen</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>Klangdatei für Warnungen wählen</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>Klang bei Erfolg</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>Klangdatei für Erfolge</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>Klangdatei für Erfolge wählen</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>Klang beim Start von Jobs und Chunks</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>Klangdatei für den Start von Jobs und Chunks</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>Klangdatei für den Start von Jobs und Chunks wählen</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>Klang bei Dienstereignissen</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>Klangdatei für Dienstereignisse</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>Klangdatei für Dienstereignisse wählen</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>Jobs mit nur einem Frame</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>Bildbetrachter-Modus:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Extern</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>Bildbetrachter automatisch starten</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>Bildbetrachter-Programm:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>Bildbetrachter-Programm</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>Bildbetrachter-Programm wählen</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>GPU-/RAM-Cache:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>GPU-Cache des Betrachters, Bytes</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>RAM-Cache des Betrachters, Bytes</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>Importgamma EXR/Standard:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>EXR-Importgamma</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>Standard-Importgamma</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>Netzwerk und Verhalten</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Dispatcher-Adresse:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Dispatcher-Adresse</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Alertor-Port:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Alertor-Port</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Anmeldename:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>Anmeldung am Verzeichnisserver überspringen</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>Sprechblase zeigen (wenn unterstützt)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>Ereignisse beim Öffnen des Fensters automatisch bestätigen</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>Liste über anderen Fenstern halten</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Betrachter</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>Klangdatei für Fehler abspielen</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>Klangdatei für Warnungen abspielen</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>Klangdatei für Erfolge abspielen</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>Klangdatei für den Start von Jobs und Chunks abspielen</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>Klangdatei für Dienstereignisse abspielen</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>Unvollständige Frames zeigen</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>Vorauslesen</translation>
    </message>
</context>
</TS>
