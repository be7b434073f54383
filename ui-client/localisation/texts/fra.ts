<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Le certificat du serveur a changé depuis la dernière connexion.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>La tâche de synchronisation n'a pas pu être créée. Vérifiez la connexion au serveur et réessayez.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le tutoriel</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Les fichiers présents aux deux emplacements sont conservés et la copie la plus ancienne est renommée.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Le certificat de sécurité du serveur n'a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Arrêter la synchronisation de ce dossier partagé ? Ses fichiers restent sur le serveur.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte :</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Ne pas fermer les programmes (un redémarrage peut être nécessaire)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell est prêt.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Le quota du dossier partagé est épuisé.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Le téléchargement a été interrompu.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Installez [ProductName] sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Via le service de relais</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell est configuré et a commencé la synchronisation.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell n'a pas pu joindre le service de relais en raison d'une erreur système. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Impossible d'établir une connexion sécurisée avec le serveur.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Choisissez les dossiers partagés du serveur à synchroniser avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Installation de [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Plus d'astuces</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell est en cours de mise à jour. Veuillez patienter.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Ouvrir Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serveur :</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1 n'a pas pu être téléchargé.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Votre ordinateur n'a pas été modifié.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Afficher les icônes d'état de synchronisation sur les fichiers et les dossiers</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Choisissez le dossier à synchroniser.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non, merci</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Les fichiers des dossiers que vous désélectionnez sont supprimés de cet ordinateur, mais restent sur le serveur.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Le dossier de synchronisation se trouve sur un volume non monté. Connectez le volume pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Bienvenue dans Driftwell !</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>La mise à jour a échoué. La version précédente reste en service.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 a été mis à jour</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Programme d'installation de [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Initialisation de Driftwell...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>L'assistant a été arrêté avant la fin.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Échec de l'authentification</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Le serveur a renvoyé une réponse que Driftwell ne comprend pas. Mettez à jour le serveur et le client vers la dernière version.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Le sens de synchronisation de ce dossier diffère de celui défini sur le serveur.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Traitement de %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Le dossier %1 n'a pas pu être créé.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Configuration personnalisée</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Le serveur exécute une ancienne version que Driftwell ne prend pas en charge. Mettez à jour le serveur.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Le sens de synchronisation diffère du réglage du serveur.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Le serveur n'accepte pas les connexions depuis cette adresse IP. Demandez l'accès à votre administrateur.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronisation de %1 fichiers</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Le disque du serveur est plein.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Le disque de cet ordinateur est plein. La synchronisation est suspendue.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Arrêter la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Le disque de cet ordinateur est plein.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>La connexion réseau a été perdue. Driftwell se reconnectera automatiquement.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Cliquez sur Terminer pour fermer l'assistant.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Une nouvelle version est prête. Cliquez pour l'installer.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Vous n'avez qu'un accès en lecture à ce dossier. Les fichiers seront téléchargés, mais jamais envoyés.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Autoriser les connexions via le service de relais</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Le dossier partagé n'existe plus sur le serveur.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Cette version de Driftwell est trop ancienne pour le serveur. Installez la dernière version.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Cliquez sur Annuler pour quitter l'assistant sans installer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>L'espace libre sur cet ordinateur est insuffisant pour ce dossier.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Le service de relais n'a trouvé aucun chemin vers votre serveur. Vérifiez que le serveur est en ligne.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Le dossier partagé n'est pas monté sur le serveur. Montez-le sur le serveur et réessayez.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Le dossier n'est pas vide. Ses fichiers seront fusionnés avec ceux du serveur.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Les liens de partage ne sont pas disponibles via le service de relais.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Votre quota sur le serveur est épuisé.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Dossiers exclus...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>La base de données de synchronisation locale est endommagée. Dissociez le dossier, puis associez-le de nouveau pour la reconstruire.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Cliquez sur Réparer pour corriger l'installation de [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Code de vérification :</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Impossible d'afficher la liste des versions précédentes de ce fichier.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>La synchronisation de ce dossier a été désactivée par votre administrateur.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Une fois la synchronisation terminée :</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell a abandonné après %1 tentatives. Vérifiez votre réseau et réessayez.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Placez des fichiers dans le dossier Driftwell : ils apparaissent sur votre serveur et sur vos autres ordinateurs.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Connexion instable</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>L'assistant dispose de tout le nécessaire pour commencer l'installation.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Vérifiez vos paramètres, puis cliquez sur Terminé pour lancer la synchronisation.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Vous devez disposer des droits d'administrateur pour installer [ProductName]. Continuer quand même ?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Le dossier %1 est déjà synchronisé par une autre tâche.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choisissez ce que vous voulez faire.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Le serveur à cette adresse a changé. Associez de nouveau la tâche de synchronisation.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Le service de relais est désactivé sur le serveur. Connectez-vous directement ou activez le service.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell n'est connecté à aucun serveur.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Choisissez vous-même les dossiers sur le serveur et sur cet ordinateur.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Pour modifier ce qui est synchronisé, ouvrez les paramètres.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Le certificat de sécurité du serveur a changé. Confirmez que vous faites confiance au nouveau certificat.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>La connexion au serveur a été fermée.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell est en train d'indexer ce dossier.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Les dossiers de cette liste ne sont jamais synchronisés.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Sauvegarder vers :</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synchronisez votre dossier personnel du serveur avec un dossier Driftwell sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>La liste des dossiers n'a pas pu être chargée en raison d'une erreur système.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Modifier, réparer ou supprimer [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Les fichiers de ce dossier sont synchronisés avec le serveur.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] n'a pas pu être installé. Votre ordinateur n'a pas été modifié.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille de fichier maximale</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Les programmes suivants utilisent des fichiers que le programme d'installation de [ProductName] doit mettre à jour.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Réparer l'installation</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Ne pas synchroniser les fichiers de plus de :</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Espace sur cet ordinateur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Votre administrateur exige la vérification en deux étapes. Activez-la d'abord pour votre compte.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Choisir les fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Supprimer le programme</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Synchronisation en cours : %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Lancer Driftwell à l'ouverture de ma session</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Connectez-vous à votre serveur pour commencer.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Le dossier partagé n'a pas pu être activé pour la synchronisation.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Connexion chiffrée</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Au :</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité modifiable.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>La configuration rapide utilise les paramètres recommandés. La configuration personnalisée vous permet de choisir chacun d'eux.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Lorsqu'un fichier a été modifié des deux côtés :</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Ce fichier n'a aucune version antérieure.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Sélectionner...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Une coche verte signifie qu'un fichier est à jour.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Choisissez les dossiers à sauvegarder</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Fichiers exclus :</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>La dissociation arrête la synchronisation avec ce serveur. Vos fichiers restent sur cet ordinateur. Continuer ?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Une erreur a interrompu l'assistant d'installation de [ProductName].</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>L'état de synchronisation en un coup d'œil</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Supprime [ProductName] de cet ordinateur. Vos fichiers synchronisés restent à leur emplacement.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Ce dossier ne peut pas être utilisé pour la synchronisation. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 a partagé le dossier « %2 » avec vous.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Choisissez un dossier qu'aucune autre tâche de synchronisation n'utilise.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Vos fichiers et dossiers synchronisés ne sont pas supprimés.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Mettez à jour Driftwell pour utiliser la synchronisation sélective.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Utiliser une connexion chiffrée (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Commencer maintenant</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Changer de dossier...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Choisir les dossiers</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 signifie aucune limite.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Afficher l'état de synchronisation</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Conserver les fichiers sur le serveur lorsque je les supprime de cet ordinateur</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Choisissez un dossier sur le serveur.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Sur cet ordinateur</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 a été téléchargé.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Cliquez sur Précédent pour revoir votre choix, ou sur Annuler pour quitter l'assistant.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Besoin d'aide pour la configuration ? Ouvrez le guide en ligne.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Fermez ces programmes et cliquez sur Réessayer, ou cliquez sur Ignorer pour continuer quand même.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Fichiers en cours d'utilisation</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Je &amp;n'accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell a détecté des modifications dans vos dossiers et les synchronise.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Aucun dossier sélectionné.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Choisissez une autre paire de dossiers à synchroniser.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Saisissez le nom d'hôte du serveur, son adresse IP ou son ID de relais.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Bienvenue dans l'assistant d'installation de [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Sélectionnez l'opération à effectuer sur [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Ce nom d'utilisateur n'est pas valide sur ce serveur.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>L'ID de relais n'est pas valide. Vérifiez l'ID et réessayez.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Une erreur s'est produite. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Votre dossier Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Envoyer vers %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Pour installer [ProductName], vous devez accepter les termes de ce contrat.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Voulez-vous vraiment dissocier cet ordinateur du serveur ?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Travailler depuis la barre des menus</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>De là, vous pouvez suspendre la synchronisation ou ouvrir vos paramètres.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Les fichiers ne peuvent pas être partagés via une connexion par relais.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Les modifications sur les lecteurs réseau peuvent être détectées avec un certain délai.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 fichiers traités sur %2</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Sélectionner un dossier</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Détection du type de connexion...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Les dossiers choisis sont copiés sur le serveur. La suppression d'un fichier sur cet ordinateur ne supprime pas sa sauvegarde.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vue d'ensemble du serveur</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Saisissez l'adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Ce fichier est verrouillé par un autre programme.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Modifier, réparer ou supprimer l'installation</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Bienvenue dans l'assistant de maintenance de [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Voulez-vous vraiment annuler l'installation de [ProductName] ?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Cet ordinateur est déjà associé à ce serveur.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Copier un lien de partage</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersion :\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Le nom d'utilisateur ou le mot de passe est incorrect. Saisissez-les de nouveau.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Supprimer ce dossier partagé de la liste ?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Vos fichiers restent sur votre propre serveur.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Le dossier partagé n'a pas pu être supprimé de la liste.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privé, rapide et toujours à jour</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Arrêter la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Modifiés récemment</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>La connexion au serveur est instable. Driftwell continue d'essayer de se reconnecter.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'assistant d'installation va installer [ProductName] sur votre ordinateur.\nCliquez sur Suivant pour continuer ou sur Annuler pour quitter l'assistant d'installation.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lisez attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Activité de synchronisation</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 a partagé un dossier avec vous</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Le code de vérification est incorrect ou a expiré.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d'utilisateur :</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Période personnalisée</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Ce dossier est en lecture seule. Les modifications effectuées sur cet ordinateur ne sont pas envoyées.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Paramètre non valide.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Dernier envoi : %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Vous pourrez modifier les paramètres de connexion plus tard.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extension de fichier</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Bienvenue dans Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Fusionner les fichiers lors de l'association d'un dossier</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>La sauvegarde n'a pas pu être effectuée. Vérifiez le dossier de destination et réessayez.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Du :</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Les fichiers portant ces extensions ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Saisissez l'adresse de votre serveur et les informations de votre compte.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Ce dossier chevauche un dossier déjà synchronisé.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Annuler l'installation</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Version non prise en charge</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Le quota restant sur le serveur est insuffisant pour ce dossier.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l'ordinateur</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Double-cliquez pour modifier l'extension</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}L'installation de [ProductName] a échoué</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>L'assistant est prêt à réparer [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Toujours utiliser le fichier du serveur</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Vérification du mot de passe...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Permet de modifier les fonctionnalités de [ProductName] qui sont installées.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Tester la connexion</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>La liste des dossiers n'a pas pu être chargée en raison d'une erreur réseau.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Reprendre la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Double-cliquez sur l'icône pour ouvrir Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Créer un dossier Driftwell dans mon dossier personnel</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Ouvrir le dossier Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Lancer [ProductName] maintenant</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Relancer la synchronisation</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Cette version de [ProductName] est déjà installée.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion réussie.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Le serveur proxy exige un mot de passe</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifier les fonctionnalités installées</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Si vous continuez, vous devrez peut-être redémarrer votre ordinateur ensuite.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Rechercher des serveurs sur ce réseau</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Les fichiers de ce dossier seront fusionnés avec ceux du serveur. Rien n'est supprimé.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Vous avez modifié un fichier par erreur ? Restaurez une version antérieure depuis le serveur.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Démarrage de Driftwell...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Changer le dossier de synchronisation</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Le numéro de port doit être compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Point de montage indisponible</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Vos modifications n'ont pas été enregistrées. Les enregistrer maintenant ?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchroniser</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell maintient la synchronisation entre les fichiers de cet ordinateur et ceux de votre serveur.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Fusionner les fichiers de ce dossier avec ceux du serveur ?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Voulez-vous vraiment supprimer cette tâche de synchronisation ? Les fichiers déjà synchronisés restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Types de fichiers à ne pas synchroniser</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Dossier de synchronisation sur cet ordinateur</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Les extensions commencent par un point, par exemple .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>L'assistant est prêt à supprimer [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Vos modifications ont été enregistrées.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Cliquez sur l'icône Driftwell dans la barre des menus pour voir ce qui est en cours de synchronisation.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Noms de fichiers à ne pas synchroniser :</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurer le proxy manuellement</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Service de relais désactivé</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>La connexion est instable. Driftwell continue d'essayer.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Cliquez sur Supprimer pour supprimer [ProductName] de cet ordinateur.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Reprendre la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] a été installé</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>J'ai compris</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l'instant</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Verrouillé par un autre programme</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Choisissez un dossier sur le serveur et un dossier sur cet ordinateur à synchroniser.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Pour réessayer, relancez le programme d'installation plus tard. Cliquez sur Terminer pour fermer l'assistant.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connectez-vous à votre serveur</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Vous pouvez synchroniser au maximum %1 dossiers partagés.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Afficher une icône sur les fichiers non synchronisés</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Veuillez patienter pendant que l'assistant installe [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Quitter Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>L'espace libre sur cet ordinateur est insuffisant.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Aucune modification n'a été apportée.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossible de créer un lien de partage pour cet élément.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Saisissez le nom d'utilisateur du serveur proxy.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Changer...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>L'assistant de maintenance vous permet de réparer ou de supprimer [ProductName] sur cet ordinateur.\nCliquez sur Suivant pour continuer ou sur Annuler pour quitter.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Conserver les deux fichiers et renommer le plus ancien</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>J'&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Versions précédentes</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 est déjà en cours d'exécution.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Cliquez sur Installer pour commencer. Pour revoir ou modifier vos paramètres, cliquez sur Précédent.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Les fichiers de plus de %1 Mo ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}L'installation de [ProductName] a été interrompue</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Détails de la connexion</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Des flèches bleues signifient qu'un fichier est en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Associer un autre serveur</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Saisissez un nom d'utilisateur.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Votre dossier Driftwell est maintenant synchronisé avec le serveur.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>File d'attente des transferts</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Choisissez un type de configuration</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell n'a pas pu démarrer. Redémarrez votre ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Corrige les fichiers, raccourcis et entrées de registre manquants ou endommagés de [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Du %1 au %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] synchronisera les dossiers de votre choix avec votre serveur.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] a été installé avec succès.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Vous n'êtes pas autorisé à accéder à ce dossier partagé.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informations sur l'état</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Mode de synchronisation :</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Ce dossier appartient à un autre serveur.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Ce fichier ne peut pas être téléchargé pour le moment.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Les motifs sans caractère générique doivent correspondre au nom de fichier complet.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Noms de fichiers exclus</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Une version plus récente de [ProductName] est déjà installée.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Votre quota de stockage sur le serveur est épuisé. Libérez de l'espace ou demandez un quota plus élevé.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Fermer automatiquement les programmes et les redémarrer ensuite</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Le dossier de synchronisation local est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>L'assistant copie des fichiers et met à jour votre système.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Conserver les deux fichiers et ajouter le nom de l'ordinateur à la copie provenant de cet ordinateur</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>L'espace libre sur cet ordinateur est insuffisant. Libérez de l'espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd'hui</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Votre quota de stockage sur le serveur est épuisé.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Aucun dossier ne peut être synchronisé.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Un conflit a été détecté. Les deux versions ont été conservées.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>La nouvelle langue sera utilisée après le redémarrage de Driftwell.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Dossier déjà utilisé</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Mise à jour de Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Sur le serveur</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 est un point de montage et ne peut pas servir de dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Certains fichiers à mettre à jour sont en cours d'utilisation.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Aucun événement à afficher.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Les modifications apportées à ce dossier sur cet ordinateur ne sont pas envoyées.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historique de synchronisation</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Vous n'avez qu'un accès en lecture à ce dossier partagé.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Utiliser une icône monochrome dans la barre des menus</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Le dossier n'est pas vide</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Le certificat du serveur a changé. Faire confiance au nouveau certificat ?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Saisissez le code de vérification fourni par votre application d'authentification.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Vous n'avez pas accès à ce dossier.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nouvelle tâche de synchronisation</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Utilisez * pour remplacer n'importe quelle suite de caractères, par exemple ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Cette opération peut prendre quelques minutes.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Conserver le fichier modifié en dernier</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Ce dossier est déjà synchronisé avec un autre dossier partagé.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synchronisez avec votre propre serveur</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Rechercher sur ce réseau</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Vos fichiers, sur tous vos ordinateurs.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Le dossier sur le serveur n'est pas disponible.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>La configuration est terminée. Driftwell synchronise maintenant vos fichiers.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Pour installer [ProductName] plus tard, relancez le programme d'installation.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Un dossier ne peut appartenir qu'à une seule tâche de synchronisation.</translation>
    </message>
</context>
</TS>
