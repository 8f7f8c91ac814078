<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>Impossibile salvare le preferenze: controllare lo spazio libero e i permessi della cartella personale. Le modifiche valgono fino alla chiusura del programma.</translation>
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
        <translation>Eventi</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menu</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>Apre il menu dell&apos;icona di notifica e di questa finestra (F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>Uso cache VRAM: %1% Uso cache RAM: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>Gamma di ingresso</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>Gamma di uscita</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>Livello di ingresso minimo</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>Livello di ingresso massimo</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>Livello di uscita minimo</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>Livello di uscita massimo</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>Soft clip</translation>
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
        <translation>Connessione a %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>Connesso a %1. Attesa di un eventuale rifiuto dell&apos;accesso di %2…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>Connesso a %1 con accesso come %2: nessun rifiuto entro 2 secondi.</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>Connesso a %1, ma l&apos;accesso di %2 è stato rifiutato. Controllare nome utente e password.</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>Il nome %1 è sconosciuto. Controllare l&apos;indirizzo.</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>Nessuno è in ascolto su %1. Controllare la porta e che il Dispatcher sia in esecuzione.</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>Nessuna risposta da %1 entro 10 secondi. Controllare l&apos;indirizzo.</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>Ciò che risponde su %1 non è un Dispatcher. Controllare la porta.</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>Connesso a %1, ma la connessione è stata chiusa dopo l&apos;accesso di %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>Impossibile connettersi a %1: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Colore HUD</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1 (manca %2)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Preferenze</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>Apre le preferenze: dove si trova il Dispatcher e chi accede</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>Non è ancora successo nulla.
Ciò che la render farm comunica sui propri job appare qui.</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>Co&amp;lonne</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Ordina per</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>Ordine di arrivo</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reimposta</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>Successo</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servizio</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Allarme</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
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
        <translation>Percorso di output</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Confermato</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servizio</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>In sospeso</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>Confermato adesso</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>Una porta è un numero da 1 a 65535</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>Inserire un numero di byte, solo in cifre</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>Il gamma è un numero maggiore di 0, ad esempio 2.2</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>Inserire il nome o l&apos;indirizzo di un computer</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connetti</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Più &amp;tardi</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connesso</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connessione in corso</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connesso</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>completato con errori</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>completato con avvisi</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>attività di servizio o allarme</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>Configura la connessione</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>Dove si trova il Dispatcher della render farm, e con quale nome utente si accede? Chiedere a chi gestisce la render farm.</translation>
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
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>&amp;Nome utente:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>Pro&amp;va la connessione</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>La prova non salva nulla.</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>L&apos;icona nell&apos;area di notifica mostra lo stato della connessione e, in alternanza, l&apos;evento più grave non ancora visto:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>Formato pixel: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>Formato pixel: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>Formato pixel: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>Formato pixel: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>Formato pixel: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>Formato pixel: sconosciuto</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>Formato bit: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>Formato bit: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>Formato bit: Luminanza</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>Formato bit: sconosciuto</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>Formato file: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>Dimensione immagine: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Livelli: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>Campioni per canale: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>Formato file: %1, deep</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleziona immagini</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>Visualizzatore immagini – job %1 (%2), chunk %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>Visualizzatore immagini – job %1 (%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>Visualizzatore immagini</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>Percorso dei fotogrammi</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>File, sequenza numerata o modello di nome mostrato</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleziona immagini</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>Rilegge i fotogrammi dal disco</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>Mostra solo l&apos;immagine a tutto schermo</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Tutti i canali</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>Canale rosso</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>Canale verde</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>Canale blu</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>Canale alfa</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminanza</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Livello:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>Livello del file mostrato</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>Sottocampionamento:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>Dimensione a cui i fotogrammi sono tenuti e mostrati</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>Adatta l&apos;immagine alla vista</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>Un pixel dell&apos;immagine è un pixel dello schermo</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>Pixel 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>Scacchiera</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>Scacchiera dietro l&apos;immagine</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>Colore dietro l&apos;immagine</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composito</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>Fonde l&apos;immagine con ciò che sta dietro</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>Premoltiplicato</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>Considera i colori moltiplicati per l&apos;alfa nei file che lo indicano</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>Informazioni sovrapposte all&apos;immagine</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Colore HUD</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>Colore delle informazioni sovrapposte</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Salva come predefinito</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>Salva le impostazioni di visualizzazione come predefinite</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibrazione</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>Posizione verticale nell&apos;immagine</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>Posizione orizzontale nell&apos;immagine</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>Calibrazione per il file attuale</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Valori predefiniti</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>La calibrazione predefinita</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>Salva la calibrazione come predefinita</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>Avanzamento del caricamento</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>Fotogrammi in cache</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>Fotogrammi nella memoria video (verde) e nella memoria principale (giallo)</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>Trascinare per scegliere un fotogramma. Maiusc contrassegna il chunk, Ctrl il fotogramma; con Alt tolgono il contrassegno</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>Fotogrammi contrassegnati</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>Chunk (arancione) e fotogrammi (giallo) contrassegnati</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>I:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>Primo fotogramma da riprodurre</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>F:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>Ultimo fotogramma da riprodurre</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Passo:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>Passo tra i fotogrammi</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>Primo fotogramma (Su)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Primo fotogramma</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>Fotogramma precedente (Sinistra)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Fotogramma precedente</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>Fotogramma successivo (Destra)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Fotogramma successivo</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>Ultimo fotogramma (Giù)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>Ultimo fotogramma</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>Fotogramma attuale</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 fotogramma/i</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Fotogrammi al secondo</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>Fotogrammi al secondo in riproduzione</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>Mostra trascinando</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>Carica i fotogrammi mentre si trascina sulla timeline</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>Contrassegna fotogramma</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>Contrassegna il fotogramma attuale o ne toglie il contrassegno</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 fotogramma/i</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>Rimetti in coda i fotogrammi contrassegnati</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>Cancella contrassegni</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>Toglie tutti i contrassegni</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>Contrassegna chunk</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>Contrassegna il chunk del fotogramma attuale o ne toglie il contrassegno</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 chunk</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>Rimetti in coda i chunk contrassegnati</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>Scarica chunk</translation>
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
        <translation>La scheda grafica non supporta i valori float HALF. Il supporto o la precisione delle immagini può essere limitato!</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>Luminanza: il massimo tra rosso, verde e blu</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>Fotogrammi contrassegnati; il pulsante destro li copia</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>Chunk contrassegnati; il pulsante destro li copia</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Pannello laterale</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>Mostra o nasconde la calibrazione e i dati del file</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>Trascinare qui immagini o una cartella, oppure aprirle con Ctrl+O</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>Fotogrammi al secondo mostrati</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>Parte in uso della memoria per i fotogrammi</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>Fotogrammi della sequenza</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%1 chunk su %2 sono danneggiati</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1% scritto</translation>
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
        <translation>Non è un Dispatcher: ha inviato %1</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>Il flusso del Dispatcher era danneggiato</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>Ricerca di %1</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>Connessione a %1 come %2</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>Connesso a %1 come %2</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>Accesso rifiutato da %1 per %2</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>Non connesso a %1 come %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>Prossimo tentativo alle %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>Connessione interrotta da %1 a %2; gli eventi di quel periodo non vengono inviati di nuovo</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>più grandi di 1 MiB</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>danneggiati</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>il Dispatcher non legge</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>uno per il Dispatcher superava 1 MiB</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Messaggi del Dispatcher o diretti a esso persi alle %1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>&amp;Conferma selezione</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>&amp;Apri cartella di output</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>Apri &amp;fotogramma/i</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>Apri fotogramma/i in un&apos;applicazione &amp;esterna</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>&amp;Rimuovi selezione	Canc</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Rimuovi tutto</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>File non trovato: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>File danneggiato: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>Impossibile mostrare il file: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>Troppo grande per OpenGL: mostrata a 1/%1 della dimensione</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL non si avvia.</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL non compila gli shader che disegnano le immagini. Il registro indica il motivo.</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL non ha memoria sufficiente. Scegliere un sottocampionamento maggiore.</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>È troppo grande per OpenGL.</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>Questo OpenGL non può mostrare campioni di questo tipo.</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>Contiene troppo pochi campioni per la sua dimensione.</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>Non si dispone del permesso di leggerlo.</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>Non è un&apos;immagine in un formato che il visualizzatore legge.</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>La sua immagine è troppo grande per la memoria di questo computer.</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>Il visualizzatore non può leggerlo: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1 s di anticipo</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 fotogramma/i</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 chunk</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>Rimuovere davvero i contrassegni attuali?</translation>
    </message>
    <message>
        <source>Copy marked frames</source>
        <translation>Copia fotogrammi contrassegnati</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>Copia chunk contrassegnati</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>Copia fotogrammi dei chunk contrassegnati</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>Chiudere davvero l&apos;Alertor?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Il Dispatcher ha rifiutato la connessione dell&apos;Alertor. Controllare nome utente e password nelle preferenze dell&apos;Alertor.</translation>
    </message>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1 (build %2)

Registro: %3</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>&amp;Configura la connessione…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1. Fare clic per vedere solo questi, di nuovo per vederli tutti</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>Errori in sospeso: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>Avvisi in sospeso: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>Successi in sospeso: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>Eventi di servizio in sospeso: %1</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
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
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>Salva dimensione e posizione attuali come predefinite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>Salvare davvero la dimensione e la posizione attuali come predefinite di questa finestra?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>Doppio clic: ripristina la finestra</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>Trascinamento: sposta la finestra. Doppio clic: la ingrandisce</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Domanda</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrompi</translation>
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
        <translation>Impossibile aprire la cartella di output %1</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>Impossibile avviare il visualizzatore immagini per mostrare il fotogramma selezionato</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>Inizializzazione...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>Ricerca dei modelli...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - Build di rilascio %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>Connetti &amp;ora</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>Prova subito a connettersi al Dispatcher</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>Caricamento del modello %1...</translation>
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
        <translation>I:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>F:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 fotogramma/i</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Ferma (Spazio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
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
        <translation>Tarrow Alertor (non connesso)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>Nuovo evento disponibile!</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor è in esecuzione in background.
Fare clic destro su questa icona per il menu contestuale o doppio clic per mostrare l&apos;applicazione.</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>&amp;Conferma eventi in sospeso</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>&amp;Silenzioso</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>&amp;Apri visualizzatore immagini</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Preferenze</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>La GPU non supporta OpenGL! Il visualizzatore immagini non può essere usato!</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>Mostra la versione e dove si trova il registro</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Sblocca</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>Seleziona file</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>File audio (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>Eseguibili (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>non è un file WAV riproducibile</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>non c&apos;è alcun dispositivo audio</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>manca una parte del programma; reinstallarlo</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>Impossibile riprodurre %1: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Preferenze dell&apos;Alertor</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>Filtri delle notifiche</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>Inizio job</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>Inizio chunk</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>Job completato con errori</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>Job completato con avvisi</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>Job completato con successo</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>Chunk completato con errori</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>Chunk completato con avvisi</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>Chunk completato con successo</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>Attività di servizio</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Suoni</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>Suono per gli errori</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>File audio per gli errori</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>Scegli il file audio per gli errori</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>Suono per gli avvisi</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>File audio per gli avvisi</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>Scegli il file audio per gli avvisi</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>Suono per i successi</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>File audio per i successi</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>Scegli il file audio per i successi</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>Suono all&apos;inizio degli elementi</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>File audio per gli inizi</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>Scegli il file audio per gli inizi</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>Suono per gli eventi di servizio</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>File audio per gli eventi di servizio</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>Scegli il file audio per gli eventi di servizio</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>Job a fotogramma singolo</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>Modalità visualizzatore:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>Integrato</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Esterno</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>Avvia automaticamente il visualizzatore</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>Applicazione di visualizzazione:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>Applicazione di visualizzazione</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>Scegli l&apos;applicazione di visualizzazione</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>Cache GPU/RAM:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>Cache GPU del visualizzatore, byte</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>Cache RAM del visualizzatore, byte</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>Gamma di importazione EXR/altri:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>Gamma di importazione EXR</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>Gamma di importazione predefinito</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>Rete e comportamento</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Indirizzo del Dispatcher:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Indirizzo del Dispatcher</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Porta dell&apos;Alertor:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Porta dell&apos;Alertor</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>Salta l&apos;autenticazione del server di directory</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>Mostra fumetto (se supportato)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>Conferma le notifiche quando si mostra l&apos;applicazione</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>Mantieni l&apos;elenco sopra le altre finestre</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Visualizzatore</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>Riproduci il file audio per gli errori</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>Riproduci il file audio per gli avvisi</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>Riproduci il file audio per i successi</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>Riproduci il file audio per gli inizi</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>Riproduci il file audio per gli eventi di servizio</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>Mostra fotogrammi incompleti</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>Leggi in anticipo</translation>
    </message>
</context>
</TS>
