<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>No se pueden guardar las preferencias: compruebe el espacio libre y los permisos de su carpeta personal. Los cambios se aplican hasta que cierre el programa.</translation>
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
        <translation>Eventos</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menú</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>Abre el menú del icono de la bandeja y de esta ventana (F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>Uso de caché VRAM: %1% Uso de caché RAM: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>Gamma de entrada</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>Gamma de salida</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>Nivel de entrada mínimo</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>Nivel de entrada máximo</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>Nivel de salida mínimo</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>Nivel de salida máximo</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>Recorte suave</translation>
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
        <translation>Conectando con %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>Conectado con %1. Esperando por si rechaza el inicio de sesión de %2…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>Conectado con %1 y sesión iniciada como %2: no hubo rechazo en 2 segundos.</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>Conectado con %1, pero rechazó el inicio de sesión de %2. Compruebe el usuario y la contraseña.</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>No se conoce el nombre %1. Compruebe la dirección.</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>Nadie escucha en %1. Compruebe el puerto y que el Dispatcher esté en marcha.</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>%1 no respondió en 10 segundos. Compruebe la dirección.</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>Lo que responde en %1 no es un Dispatcher. Compruebe el puerto.</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>Conectado con %1, pero cortó la conexión tras el inicio de sesión de %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>No se puede conectar con %1: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Color del HUD</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1 (sin %2)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>Abre las preferencias: dónde está el Dispatcher y quién inicia sesión</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>Aún no ha pasado nada.
Lo que la granja de render comunique sobre sus trabajos aparecerá aquí.</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>Col&amp;umnas</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>Orden de llegada</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>Éxito</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alerta</translation>
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
        <translation>Hora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation>Chunk</translation>
    </message>
    <message>
        <source>Output path</source>
        <translation>Ruta de salida</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Confirmado</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>Confirmado ahora mismo</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>Un puerto es un número de 1 a 65535</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>Introduzca un número de bytes, solo con cifras</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>El gamma es un número mayor que 0, como 2.2</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>Introduzca el nombre o la dirección de un equipo</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>no conectado</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>terminado con errores</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>terminado con avisos</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>actividad de servicio o alerta</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>Configurar la conexión</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>¿Dónde está el Dispatcher de la granja de render y quién es usted? Pregunte a quien administra la granja.</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Servidor:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Co&amp;ntraseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>P&amp;robar la conexión</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>La prueba no guarda nada.</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>El icono de la bandeja del sistema muestra el estado de la conexión y, alternando con él, el evento más grave que aún no ha visto:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>Formato de píxel: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>Formato de píxel: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>Formato de píxel: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>Formato de píxel: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>Formato de píxel: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>Formato de píxel: desconocido</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>Formato de bits: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>Formato de bits: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>Formato de bits: Luminancia</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>Formato de bits: desconocido</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Archivo: %1</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>Formato de archivo: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>Tamaño de imagen: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Capas: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>Muestras por canal: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>Formato de archivo: %1, deep</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>Visor de imágenes: trabajo %1 (%2), chunk %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>Visor de imágenes: trabajo %1 (%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>Visor de imágenes</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>Ruta de los fotogramas</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>Archivo, secuencia numerada o patrón de nombre que se muestra</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>Volver a leer los fotogramas del disco</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>Mostrar solo la imagen en toda la pantalla</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Todos los canales</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>Canal rojo</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>Canal verde</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>Canal azul</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>Canal alfa</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminancia</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Capa:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>Capa del archivo que se muestra</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>Submuestreo:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>Tamaño con el que se guardan y muestran los fotogramas</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>Ajustar la imagen a la vista</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>Un píxel de la imagen es un píxel de la pantalla</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>Píxeles 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>Damero</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>Damero detrás de la imagen</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>Color detrás de la imagen</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composición</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>Mezclar la imagen con lo que hay detrás</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>Premultiplicado</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>Tomar los colores como multiplicados por alfa en los archivos que así lo indican</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>Información superpuesta a la imagen</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Color del HUD</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>Color de la información superpuesta</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Guardar como predeterminado</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>Guardar los ajustes de visualización como predeterminados</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibración</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>Posición vertical en la imagen</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>Posición horizontal en la imagen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>Calibración para el archivo actual</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Valores predeterminados</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>La calibración predeterminada</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>Guardar la calibración como predeterminada</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>Progreso de la carga</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>Fotogramas en caché</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>Fotogramas en la memoria de vídeo (verde) y en la principal (amarillo)</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>Arrastre para elegir un fotograma. Mayús marca su chunk, Ctrl el fotograma; con Alt quitan la marca</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>Fotogramas marcados</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>Chunks (naranja) y fotogramas (amarillo) marcados</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>I:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>Primer fotograma que se reproduce</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>F:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>Último fotograma que se reproduce</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Paso:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>Paso entre fotogramas</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>Primer fotograma (Arriba)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Primer fotograma</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>Fotograma anterior (Izquierda)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>Fotograma siguiente (Derecha)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>Último fotograma (Abajo)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>Último fotograma</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>Fotograma actual</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 fotograma(s)</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>Fotogramas por segundo al reproducir</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>Mostrar al arrastrar</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>Cargar fotogramas mientras se arrastra la línea de tiempo</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>Marcar fotograma</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>Marcar el fotograma actual o quitarle la marca</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 fotograma(s)</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>Reencolar fotogramas marcados</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>Borrar marcas</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>Quitar todas las marcas</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>Marcar chunk</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>Marcar el chunk del fotograma actual o quitarle la marca</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 chunk(s)</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>Reencolar chunks marcados</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>Descargar chunks</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>Trabajo:</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>Chunk:</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>Su tarjeta gráfica no admite valores flotantes HALF. La compatibilidad o la precisión de las imágenes puede ser limitada.</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>Luminancia: el mayor valor de rojo, verde y azul</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>Fotogramas marcados; el botón derecho los copia</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>Chunks marcados; el botón derecho los copia</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel lateral</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>Mostrar u ocultar la calibración y los datos del archivo</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>Suelte aquí imágenes o una carpeta, o ábralas con Ctrl+O</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>Fotogramas por segundo que se muestran</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>Parte en uso de la memoria para fotogramas</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>Fotogramas de la secuencia</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%1 de %2 chunks están dañados</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1&#xa0;% escrito</translation>
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
        <translation>No es un Dispatcher: envió %1</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>El flujo del Dispatcher estaba dañado</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>Buscando %1</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>Conectando con %1 como %2</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>Conectado con %1 como %2</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>Inicio de sesión rechazado por %1 para %2</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>No conectado con %1 como %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>Próximo intento a las %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>Sin conexión de %1 a %2; los eventos de ese periodo no se vuelven a enviar</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>mayores de 1 MiB</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañados</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>el Dispatcher no lee</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>uno dirigido al Dispatcher era mayor de 1 MiB</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Mensajes del Dispatcher o hacia él perdidos a las %1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>&amp;Confirmar selección</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>&amp;Abrir carpeta de salida</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>Abrir &amp;fotograma(s)</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>Abrir fotograma(s) en aplicación &amp;externa</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>&amp;Quitar selección	Supr</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Quitar todo</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>No se encuentra el archivo: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>Archivo dañado: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>No se puede mostrar el archivo: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>Demasiado grande para OpenGL: se muestra a 1/%1 de su tamaño</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL no se inicia.</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL no compila los shaders que dibujan las imágenes. El registro indica el motivo.</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL no tiene memoria para él. Elija un submuestreo mayor.</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>Es demasiado grande para OpenGL.</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>Este OpenGL no puede mostrar muestras de este tipo.</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>Contiene muy pocas muestras para su tamaño.</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>No tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>No es una imagen de un formato que el visor lea.</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>Su imagen es demasiado grande para la memoria de este equipo.</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>El visor no puede leerlo: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>Qué falla: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1 s por delante</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 fotograma(s)</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 chunk(s)</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>¿Seguro que desea quitar las marcas actuales?</translation>
    </message>
    <message>
        <source>Copy marked frames</source>
        <translation>Copiar fotogramas marcados</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>Copiar chunks marcados</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>Copiar fotogramas de los chunks marcados</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>¿Seguro que desea cerrar el Alertor?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>El Dispatcher ha rechazado la conexión del Alertor. Compruebe el usuario y la contraseña en las preferencias del Alertor.</translation>
    </message>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1 (compilación %2)

Registro: %3</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>&amp;Configurar la conexión…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1. Haga clic para ver solo estos y otra vez para verlos todos</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>Errores pendientes: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>Avisos pendientes: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>Éxitos pendientes: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>Eventos de servicio pendientes: %1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
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
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>Guardar el tamaño y la posición actuales como predeterminados</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>¿Seguro que desea guardar el tamaño y la posición actuales como predeterminados de este diálogo?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>Doble clic: restaurar la ventana</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>Arrastrar: mover la ventana. Doble clic: maximizarla</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrumpir</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>No se puede abrir la carpeta de salida %1</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>No se puede iniciar el visor de imágenes para mostrar el fotograma seleccionado</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>Inicializando...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>Enumerando plantillas...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - Compilación %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>Conectar a&amp;hora</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>Intenta conectarse al Dispatcher de inmediato</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>Cargando plantilla %1...</translation>
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
        <translation>%1 fotograma(s)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Detener (Espacio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
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
        <translation>Tarrow Alertor (no conectado)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>¡Nuevo evento disponible!</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor se ejecuta en segundo plano.
Haga clic derecho en este icono para abrir el menú o doble clic para mostrar la aplicación.</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>&amp;Confirmar eventos pendientes</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>&amp;Silenciar</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>&amp;Abrir visor de imágenes</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;lir</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>¡Su GPU no admite OpenGL! El visor de imágenes no se puede usar.</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>Ac&amp;erca de</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>Muestra la versión y dónde está el registro</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>Archivos de audio (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>Ejecutables (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>no es un archivo WAV que se pueda reproducir</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>no hay ningún dispositivo de sonido</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>falta una parte del programa; vuelva a instalarlo</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>No se puede reproducir %1: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Preferencias del Alertor</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>Filtros de notificaciones</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>Inicio de trabajo</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>Inicio de chunk</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>Trabajo terminado con errores</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>Trabajo terminado con avisos</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>Trabajo terminado con éxito</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>Chunk terminado con errores</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>Chunk terminado con avisos</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>Chunk terminado con éxito</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>Actividades de servicio</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>Sonido en caso de error</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>Archivo de sonido para errores</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>Elegir el archivo de sonido para errores</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>Sonido en caso de aviso</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>Archivo de sonido para avisos</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>Elegir el archivo de sonido para avisos</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>Sonido en caso de éxito</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>Archivo de sonido para éxitos</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>Elegir el archivo de sonido para éxitos</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>Sonido al iniciar elementos</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>Archivo de sonido para inicios</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>Elegir el archivo de sonido para inicios</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>Sonido en eventos de servicio</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>Archivo de sonido para eventos de servicio</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>Elegir el archivo de sonido para eventos de servicio</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>Trabajos de un solo fotograma</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>Modo del visor de imágenes:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>Integrado</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Externo</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>Abrir el visor automáticamente</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>Aplicación de visualización:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>Aplicación de visualización</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>Elegir la aplicación de visualización</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>Caché GPU/RAM del visor:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>Caché GPU del visor, bytes</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>Caché RAM del visor, bytes</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>Gamma de importación EXR/otros:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>Gamma de importación EXR</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>Gamma de importación predeterminado</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>Red y comportamiento</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Dirección del Dispatcher:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Dirección del Dispatcher</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Puerto del Alertor:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Puerto del Alertor</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>Omitir la autenticación del servidor de directorio</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>Mostrar globo (si se admite)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>Confirmar las notificaciones al mostrar la aplicación</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>Mantener la lista sobre las demás ventanas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Visor</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>Reproducir el archivo de sonido para errores</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>Reproducir el archivo de sonido para avisos</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>Reproducir el archivo de sonido para éxitos</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>Reproducir el archivo de sonido para inicios</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>Reproducir el archivo de sonido para eventos de servicio</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>Mostrar fotogramas incompletos</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>Leer por adelantado</translation>
    </message>
</context>
</TS>
