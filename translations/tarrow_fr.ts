<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>Impossible d&apos;enregistrer les préférences&#xa0;: vérifiez l&apos;espace libre et les droits d&apos;accès de votre dossier personnel. Vos modifications s&apos;appliquent jusqu&apos;à la fermeture du programme.</translation>
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
        <translation>Événements</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>&amp;Menu</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>Ouvre le menu de l&apos;icône de notification et de cette fenêtre (F10)</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>Cache VRAM utilisé&#xa0;: %1% Cache RAM utilisé&#xa0;: %2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>Gamma d&apos;entrée</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>Gamma de sortie</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>Niveau d&apos;entrée bas</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>Niveau d&apos;entrée haut</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>Niveau de sortie bas</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>Niveau de sortie haut</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>Écrêtage doux</translation>
    </message>
</context>
<context>
    <name>CalibrationRow</name>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>Connecté à %1. Attente d&apos;un éventuel refus de l&apos;authentification de %2…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>Connecté à %1 et authentifié en tant que %2&#xa0;: aucun refus en 2 secondes.</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>Connecté à %1, mais l&apos;authentification de %2 a été refusée. Vérifiez l&apos;identifiant et le mot de passe.</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>Le nom %1 est inconnu. Vérifiez l&apos;adresse.</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>Personne n&apos;écoute à l&apos;adresse %1. Vérifiez le port et que le Dispatcher fonctionne.</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>Aucune réponse de %1 en 10 secondes. Vérifiez l&apos;adresse.</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>Ce qui répond à l&apos;adresse %1 n&apos;est pas un Dispatcher. Vérifiez le port.</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>Connecté à %1, mais la connexion a été coupée après l&apos;authentification de %2.</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>Impossible de se connecter à %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Couleur du HUD</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1 (pas de %2)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>Pré&amp;férences</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>Ouvre les préférences&#xa0;: où se trouve le Dispatcher et qui se connecte</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>Rien ne s&apos;est encore passé.
Ce que la ferme de rendu signale au sujet de vos jobs apparaît ici.</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>Co&amp;lonnes</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>Ordre d&apos;arrivée</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alerte</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
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
        <translation>Chemin de sortie</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Acquitté</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>Acquitté à l&apos;instant</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>Un port est un nombre de 1 à 65535</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>Saisissez un nombre d&apos;octets, en chiffres uniquement</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>Le gamma est un nombre supérieur à 0, par exemple 2.2</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>Saisissez le nom ou l&apos;adresse d&apos;un ordinateur</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connecté</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>terminé avec erreurs</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>terminé avec avertissements</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>activité de service ou alerte</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>Configurer la connexion</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>Où se trouve le Dispatcher de la ferme de rendu, et qui êtes-vous&#xa0;? Demandez à qui gère la ferme.</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Serveur&#xa0;:</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port&#xa0;:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>&amp;Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>T&amp;ester la connexion</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>Un test n&apos;enregistre rien.</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>L&apos;icône de la zone de notification indique l&apos;état de la connexion et, en alternance, l&apos;événement le plus grave que vous n&apos;avez pas encore consulté&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>Format de pixel&#xa0;: U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>Format de pixel&#xa0;: U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>Format de pixel&#xa0;: U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>Format de pixel&#xa0;: F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>Format de pixel&#xa0;: F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>Format de pixel&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>Format de bits&#xa0;: RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>Format de bits&#xa0;: RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>Format de bits&#xa0;: Luminance</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>Format de bits&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>Format de fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>Taille de l&apos;image&#xa0;: %1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>Calques&#xa0;: %1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>Échantillons par canal&#xa0;: %1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>Format de fichier&#xa0;: %1, deep</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Sélectionner des images</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>Visionneuse d&apos;images – job %1 (%2), chunk %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>Visionneuse d&apos;images – job %1 (%2)</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>Visionneuse d&apos;images</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>Chemin des images</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>Fichier, séquence numérotée ou motif de nom affiché</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Sélectionner des images</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>Relire les images depuis le disque</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>Afficher l&apos;image seule sur tout l&apos;écran</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Tous les canaux</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>Canal rouge</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>Canal vert</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>Canal bleu</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>Canal alpha</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Calque&#xa0;:</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>Calque du fichier affiché</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>Sous-échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>Taille à laquelle les images sont conservées et affichées</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>Ajuster l&apos;image à la vue</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>Un pixel de l&apos;image est un pixel de l&apos;écran</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>Pixels 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>Damier</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>Damier derrière l&apos;image</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>Couleur derrière l&apos;image</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composite</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>Fondre l&apos;image avec ce qui est derrière</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>Prémultiplié</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>Considérer les couleurs comme multipliées par l&apos;alpha pour les fichiers qui l&apos;indiquent</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>Informations superposées à l&apos;image</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>Couleur du HUD</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>Couleur des informations superposées</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>Enregistrer les réglages d&apos;affichage comme réglages par défaut</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Étalonnage</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>Position verticale dans l&apos;image</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>Position horizontale dans l&apos;image</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>Étalonnage pour le fichier actuel</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>L&apos;étalonnage par défaut</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>Enregistrer l&apos;étalonnage comme étalonnage par défaut</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>Progression du chargement</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>Images en cache</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>Images en mémoire vidéo (vert) et en mémoire vive (jaune)</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>Glissez pour choisir une image. Maj marque son chunk, Ctrl l&apos;image&#xa0;; avec Alt, la marque est retirée</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>Images marquées</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>Chunks (orange) et images (jaune) marqués</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>D:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>Première image à lire</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>F:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>Dernière image à lire</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Pas&#xa0;:</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>Pas entre les images</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>Première image (Haut)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>Première image</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>Image précédente (Gauche)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>Image suivante (Droite)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>Dernière image (Bas)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>Dernière image</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>Image actuelle</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 image(s)</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>i/s&#xa0;:</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>Images par seconde à la lecture</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>Afficher en glissant</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>Charger les images pendant le glissement sur la timeline</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>Marquer l&apos;image</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>Marquer l&apos;image actuelle ou retirer sa marque</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 image(s)</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>Remettre en file les images marquées</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>Effacer les marques</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>Retirer toutes les marques</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>Marquer le chunk</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>Marquer le chunk de l&apos;image actuelle ou retirer sa marque</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 chunk(s)</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>Remettre en file les chunks marqués</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>Télécharger les chunks</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>Job&#xa0;:</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>Chunk&#xa0;:</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>Votre carte graphique ne prend pas en charge les flottants HALF. La prise en charge ou la précision des images peut être limitée&#xa0;!</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>Luminance&#xa0;: la plus grande valeur du rouge, du vert et du bleu</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>Images marquées&#xa0;; le bouton droit les copie</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>Chunks marqués&#xa0;; le bouton droit les copie</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>Afficher ou masquer l&apos;étalonnage et les informations du fichier</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>Déposez ici des images ou un dossier, ou ouvrez-les avec Ctrl+O</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>Images affichées par seconde</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>Part utilisée de la mémoire destinée aux images</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>Images de la séquence</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%1 chunks sur %2 sont endommagés</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>%1&#xa0;% écrit</translation>
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
        <translation>Ce n&apos;est pas un Dispatcher&#xa0;: il a envoyé %1</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>Le flux du Dispatcher était endommagé</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>Recherche de %1</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>Connexion à %1 en tant que %2</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>Connecté à %1 en tant que %2</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>Authentification de %2 refusée par %1</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>Non connecté à %1 en tant que %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>Prochaine tentative à %1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>Connexion interrompue de %1 à %2&#xa0;; les événements de cette période ne sont pas renvoyés</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>plus de 1 Mio</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagés</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>le Dispatcher ne lit pas</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>un message vers le Dispatcher dépassait 1 Mio</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>Messages du Dispatcher ou vers lui perdus à %1&#xa0;: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>&amp;Acquitter la sélection</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>&amp;Ouvrir le dossier de sortie</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>Ouvrir la ou les i&amp;mages</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>Ouvrir la ou les images dans une application e&amp;xterne</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>&amp;Retirer la sélection	Suppr</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>Fichier introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>Fichier endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>Fichier impossible à afficher&#xa0;: %1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>Trop grande pour OpenGL&#xa0;: affichée à 1/%1 de sa taille</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL ne démarre pas.</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL ne compile pas les shaders qui dessinent les images. Le journal dit pourquoi.</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL n&apos;a pas assez de mémoire pour cette image. Choisissez un sous-échantillonnage plus fort.</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>Il est trop grand pour OpenGL.</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>Cet OpenGL ne peut pas afficher ce type d&apos;échantillons.</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>Il contient trop peu d&apos;échantillons pour sa taille.</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>Vous n&apos;avez pas le droit de le lire.</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>Ce n&apos;est pas une image d&apos;un format que la visionneuse lit.</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>Son image est trop grande pour la mémoire de cet ordinateur.</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>La visionneuse ne peut pas le lire&#xa0;: %1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>Problème&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>%1 s d&apos;avance</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 image(s)</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 chunk(s)</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>Voulez-vous vraiment retirer les marques actuelles&#xa0;?</translation>
    </message>
    <message>
        <source>Copy marked frames</source>
        <translation>Copier les images marquées</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>Copier les chunks marqués</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>Copier les images des chunks marqués</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>Voulez-vous vraiment quitter l&apos;Alertor&#xa0;?</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Le Dispatcher a refusé la connexion de l&apos;Alertor. Vérifiez l&apos;identifiant et le mot de passe dans les préférences de l&apos;Alertor&#xa0;!</translation>
    </message>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1 (build %2)

Journal&#xa0;: %3</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>&amp;Configurer la connexion…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1. Cliquez pour n&apos;afficher que cette catégorie, de nouveau pour tout afficher</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>Erreurs en attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>Avertissements en attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>Succès en attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>Événements de service en attente&#xa0;: %1</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
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
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>Enregistrer la taille et la position actuelles par défaut</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>Voulez-vous vraiment enregistrer la taille et la position actuelles comme valeurs par défaut de cette fenêtre&#xa0;?</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>Double-clic&#xa0;: restaurer la fenêtre</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>Glisser&#xa0;: déplacer la fenêtre. Double-clic&#xa0;: l&apos;agrandir</translation>
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
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrompre</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>O&amp;K</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>Impossible d&apos;ouvrir le dossier de sortie %1</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>Impossible de lancer la visionneuse pour afficher l&apos;image sélectionnée</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>Initialisation...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>Énumération des modèles...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - Build de production %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>Se co&amp;nnecter maintenant</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>Essaie de se connecter immédiatement au Dispatcher</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>Chargement du modèle %1...</translation>
    </message>
</context>
<context>
    <name>TransportControls</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 i/s</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>D:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>F:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 image(s)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>Arrêter (Espace)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
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
        <translation>Tarrow Alertor (non connecté)</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>Nouvel événement disponible&#xa0;!</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor fonctionne en arrière-plan.
Cliquez avec le bouton droit sur cette icône pour le menu contextuel ou double-cliquez pour afficher l&apos;application.</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>&amp;Acquitter les événements en attente</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>&amp;Silencieux</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>&amp;Ouvrir la visionneuse d&apos;images</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>Pré&amp;férences</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>Votre carte graphique ne prend pas en charge OpenGL&#xa0;! La visionneuse d&apos;images ne peut pas être utilisée&#xa0;!</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>Affiche la version et l&apos;emplacement du journal</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>Sélectionner un fichier</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>Fichiers audio (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>Exécutables (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>le fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>ce n&apos;est pas un fichier WAV lisible</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>il n&apos;y a pas de périphérique audio</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>une partie du programme manque&#xa0;; réinstallez-le</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Préférences de l&apos;Alertor</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>Filtres de notification</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>Début de job</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>Début de chunk</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>Job terminé avec erreurs</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>Job terminé avec avertissements</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>Job terminé avec succès</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>Chunk terminé avec erreurs</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>Chunk terminé avec avertissements</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>Chunk terminé avec succès</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>Activités de service</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>Son en cas d&apos;erreur</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>Fichier son pour les erreurs</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>Choisir le fichier son pour les erreurs</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>Son en cas d&apos;avertissement</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>Fichier son pour les avertissements</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>Choisir le fichier son pour les avertissements</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>Son en cas de succès</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>Fichier son pour les succès</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>Choisir le fichier son pour les succès</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>Son au début des éléments</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>Fichier son pour les débuts</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>Choisir le fichier son pour les débuts</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>Son pour les événements de service</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>Fichier son pour les événements de service</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>Choisir le fichier son pour les événements de service</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>Jobs d&apos;une seule image</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>Mode de la visionneuse&#xa0;:</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>Intégrée</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Externe</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>Lancer la visionneuse automatiquement</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>Application de visualisation&#xa0;:</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>Application de visualisation</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>Choisir l&apos;application de visualisation</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>Cache GPU/RAM&#xa0;:</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>Cache GPU de la visionneuse, octets</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>Cache RAM de la visionneuse, octets</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>Gamma d&apos;import EXR/défaut&#xa0;:</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>Gamma d&apos;import EXR</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>Gamma d&apos;import par défaut</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>Réseau et comportement</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Adresse du Dispatcher&#xa0;:</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Adresse du Dispatcher</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Port de l&apos;Alertor&#xa0;:</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Port de l&apos;Alertor</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>Ignorer l&apos;authentification du serveur d&apos;annuaire</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>Afficher la bulle (si prise en charge)</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>Acquitter les notifications à l&apos;affichage de l&apos;application</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>Garder la liste au-dessus des autres fenêtres</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Visionneuse</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>Lire le fichier son pour les erreurs</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>Lire le fichier son pour les avertissements</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>Lire le fichier son pour les succès</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>Lire le fichier son pour les débuts</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>Lire le fichier son pour les événements de service</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>Afficher les images incomplètes</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>Charger à l&apos;avance</translation>
    </message>
</context>
</TS>
