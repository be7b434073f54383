<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Das Zertifikat des Servers hat sich seit der letzten Verbindung geändert.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Die Synchronisierungsaufgabe konnte nicht erstellt werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Einführung anzeigen</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Dateien, die an beiden Orten vorhanden sind, werden behalten, und die ältere Kopie wird umbenannt.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Das Sicherheitszertifikat des Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Synchronisierung dieses freigegebenen Ordners beenden? Seine Dateien bleiben auf dem Server.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>Programme &amp;nicht schließen (ein Neustart kann erforderlich sein)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell ist bereit.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Das Kontingent des freigegebenen Ordners ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>[ProductName] auf diesem Computer einrichten.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Über den Relay-Dienst</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell ist eingerichtet und hat mit der Synchronisierung begonnen.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell konnte den Relay-Dienst wegen eines Systemfehlers nicht erreichen. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Es konnte keine sichere Verbindung zum Server hergestellt werden.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Wählen Sie aus, welche freigegebenen Ordner auf dem Server mit diesem Computer synchronisiert werden sollen.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}[ProductName] wird installiert</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Weitere Tipps</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisierungsaufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell wird aktualisiert. Bitte warten.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Driftwell öffnen</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>%1 konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>An Ihrem Computer wurden keine Änderungen vorgenommen.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Synchronisierungsstatus-Symbole an Dateien und Ordnern anzeigen</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Wählen Sie den Ordner aus, der synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Dateien in Ordnern, deren Auswahl Sie aufheben, werden von diesem Computer entfernt, bleiben aber auf dem Server.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Der Synchronisierungsordner befindet sich auf einem Volume, das nicht eingebunden ist. Schließen Sie das Volume an, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Willkommen bei Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Das Update ist fehlgeschlagen. Die bisherige Version wird weiterhin verwendet.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Wird synchronisiert...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 wurde aktualisiert</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Setup von [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell wird initialisiert...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Der Assistent wurde vor dem Abschluss beendet.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentifizierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Der Server hat in einer Weise geantwortet, die Driftwell nicht versteht. Aktualisieren Sie Server und Client auf die neueste Version.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Die Synchronisierungsrichtung dieses Ordners weicht von der auf dem Server eingestellten ab.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 wird verarbeitet</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Der Ordner %1 konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Benutzerdefinierte Einrichtung</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Auf dem Server läuft eine ältere Version, die Driftwell nicht unterstützt. Aktualisieren Sie den Server.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Die Synchronisierungsrichtung weicht von der Einstellung auf dem Server ab.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Der Server akzeptiert keine Verbindungen von dieser IP-Adresse. Bitten Sie Ihren Administrator um Zugriff.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 Dateien werden synchronisiert</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Der Datenträger auf dem Server ist voll.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Der Datenträger dieses Computers ist voll. Die Synchronisierung wurde angehalten.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Diesen Ordner nicht mehr synchronisieren</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Der Datenträger dieses Computers ist voll.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Die Netzwerkverbindung wurde unterbrochen. Driftwell stellt die Verbindung automatisch wieder her.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klicken Sie auf „Fertig stellen“, um den Assistenten zu schließen.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Eine neue Version ist bereit. Klicken Sie hier, um sie zu installieren.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Sie haben für diesen Ordner nur Lesezugriff. Dateien werden heruntergeladen, aber nie hochgeladen.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Verbindungen über den Relay-Dienst zulassen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Diese Version von Driftwell ist zu alt für den Server. Installieren Sie die neueste Version.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Klicken Sie auf „Abbrechen“, um den Assistenten ohne Installation zu beenden.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Auf diesem Computer ist nicht genügend freier Speicherplatz für diesen Ordner vorhanden.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Der Relay-Dienst konnte keine Route zu Ihrem Server finden. Prüfen Sie, ob der Server online ist.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht eingebunden. Binden Sie ihn auf dem Server ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Der Ordner ist nicht leer. Seine Dateien werden mit den Dateien auf dem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Freigabelinks sind über den Relay-Dienst nicht verfügbar.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ihr Kontingent auf dem Server ist aufgebraucht.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Ausgeschlossene Ordner...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Die lokale Synchronisierungsdatenbank ist beschädigt. Heben Sie die Verknüpfung des Ordners auf und verknüpfen Sie ihn erneut, um die Datenbank neu aufzubauen.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von [ProductName] zu reparieren.</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Bestätigungscode:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Die früheren Versionen dieser Datei können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Die Synchronisierung dieses Ordners wurde von Ihrem Administrator deaktiviert.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Nach Abschluss der Synchronisierung:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell hat nach %1 Versuchen aufgegeben. Prüfen Sie Ihr Netzwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Legen Sie Dateien in den Driftwell-Ordner, und sie erscheinen auf Ihrem Server und Ihren anderen Computern.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Verbindung instabil</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Der Assistent hat alle Angaben, die er für die Installation benötigt.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Prüfen Sie Ihre Einstellungen und klicken Sie dann auf „Fertig“, um die Synchronisierung zu starten.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Zum Installieren von [ProductName] sind Administratorrechte erforderlich. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Der Ordner %1 wird bereits von einer anderen Synchronisierungsaufgabe synchronisiert.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wählen Sie aus, was Sie tun möchten.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Der Server unter dieser Adresse hat sich geändert. Verknüpfen Sie die Synchronisierungsaufgabe erneut.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Der Relay-Dienst ist auf dem Server deaktiviert. Verbinden Sie sich direkt oder aktivieren Sie den Dienst.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell ist mit keinem Server verbunden.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindungsart</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Wählen Sie die Ordner auf dem Server und auf diesem Computer selbst aus.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Um zu ändern, was synchronisiert wird, öffnen Sie die Einstellungen.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Das Sicherheitszertifikat des Servers hat sich geändert. Bestätigen Sie, dass Sie dem neuen Zertifikat vertrauen.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Die Verbindung zum Server wurde geschlossen.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indiziert diesen Ordner.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Ordner in dieser Liste werden nie synchronisiert.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Sichern nach:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synchronisieren Sie Ihren Home-Ordner auf dem Server mit einem Driftwell-Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Die Ordnerliste konnte wegen eines Systemfehlers nicht geladen werden.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>[ProductName] ändern, reparieren oder entfernen.</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Dateien in diesem Ordner werden mit dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] konnte nicht installiert werden. An Ihrem Computer wurden keine Änderungen vorgenommen.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Die folgenden Programme verwenden Dateien, die das Setup von [ProductName] aktualisieren muss.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Installation reparieren</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Bereit zur Installation von [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Keine Dateien synchronisieren, die größer sind als:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Speicherplatz auf diesem Computer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Ihr Administrator verlangt die zweistufige Bestätigung. Aktivieren Sie sie zuerst für Ihr Konto.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Dateien zum Synchronisieren auswählen</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Programm entfernen</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Wird synchronisiert: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Driftwell bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Melden Sie sich bei Ihrem Server an, um loszulegen.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Der freigegebene Ordner konnte nicht für die Synchronisierung aktiviert werden.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte Verbindung</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Verschlüsselte Verbindung</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] hat keine Funktionen, die geändert werden können.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Die Schnelleinrichtung verwendet die empfohlenen Einstellungen. Bei der benutzerdefinierten Einrichtung legen Sie jede Einstellung selbst fest.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Wenn eine Datei auf beiden Seiten geändert wurde:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Diese Datei hat keine früheren Versionen.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Auswählen...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Ein grünes Häkchen bedeutet, dass eine Datei aktuell ist.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Ordner zum Sichern auswählen</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Ausgeschlossene Dateien:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Wenn Sie die Verknüpfung aufheben, wird die Synchronisierung mit diesem Server beendet. Ihre Dateien bleiben auf diesem Computer. Fortfahren?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Ein Fehler hat den Setup-Assistenten von [ProductName] abgebrochen.</translation>
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
        <translation>Synchronisierungsstatus auf einen Blick</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Entfernt [ProductName] von diesem Computer. Ihre synchronisierten Dateien bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Dieser Ordner kann nicht zum Synchronisieren verwendet werden. Wählen Sie einen anderen aus.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 hat den Ordner „%2“ für Sie freigegeben.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Wählen Sie einen Ordner aus, den keine andere Synchronisierungsaufgabe verwendet.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Ihre synchronisierten Dateien und Ordner werden nicht gelöscht.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Aktualisieren Sie Driftwell, um die selektive Synchronisierung zu verwenden.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Verschlüsselte Verbindung verwenden (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Ordner ändern...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 bedeutet keine Begrenzung.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Suchbegriff</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisierungsstatus anzeigen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Dateien auf dem Server behalten, wenn ich sie auf diesem Computer lösche</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Wählen Sie einen Ordner auf dem Server aus.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Auf diesem Computer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Brauchen Sie Hilfe bei der Einrichtung? Öffnen Sie die Online-Anleitung.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Schließen Sie diese Programme und klicken Sie auf „Wiederholen“, oder klicken Sie auf „Ignorieren“, um trotzdem fortzufahren.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxy-Einstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Dateien in Verwendung</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Ich &amp;lehne die Bedingungen der Lizenzvereinbarung ab</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell hat Änderungen in Ihren Ordnern erkannt und synchronisiert sie.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Kein Ordner ausgewählt.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Wählen Sie ein weiteres Ordnerpaar aus, das synchron gehalten werden soll.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Geben Sie den Hostnamen, die IP-Adresse oder die Relay-ID des Servers ein.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Willkommen beim Setup-Assistenten für [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Wählen Sie den Vorgang aus, den Sie für [ProductName] ausführen möchten.</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Der Benutzername ist auf diesem Server ungültig.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Die Relay-ID ist ungültig. Prüfen Sie die ID und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Etwas ist schiefgegangen. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Ihr Driftwell-Ordner</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Senden an %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Um [ProductName] zu installieren, müssen Sie die Bedingungen dieser Vereinbarung akzeptieren.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Möchten Sie die Verknüpfung dieses Computers mit dem Server wirklich aufheben?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Arbeiten über die Menüleiste</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Von dort aus können Sie die Synchronisierung anhalten oder Ihre Einstellungen öffnen.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Über eine Relay-Verbindung können keine Dateien freigegeben werden.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Änderungen auf Netzlaufwerken werden möglicherweise verzögert erkannt.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 von %2 Dateien verarbeitet</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Verbindungsart wird ermittelt...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Die ausgewählten Ordner werden auf den Server kopiert. Wenn Sie eine Datei auf diesem Computer löschen, wird ihre Sicherung nicht gelöscht.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serverübersicht</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Geben Sie die Adresse und den Port des Proxyservers ein.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokaler Ordner</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Diese Datei wird von einem anderen Programm gesperrt.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>In Bereitschaft</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Willkommen beim Wartungs-Assistenten für [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Möchten Sie die Installation von [ProductName] wirklich abbrechen?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Dieser Computer ist bereits mit diesem Server verknüpft.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Freigabelink kopieren</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersion:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Der Benutzername oder das Passwort ist falsch. Geben Sie beides erneut ein.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Diesen freigegebenen Ordner aus der Liste entfernen?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Ihre Dateien bleiben auf Ihrem eigenen Server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Der freigegebene Ordner konnte nicht aus der Liste entfernt werden.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privat, schnell und immer aktuell</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Diese Ordner nicht mehr synchronisieren</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Die Verbindung zum Server ist instabil. Driftwell versucht weiterhin, die Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Der Setup-Assistent installiert [ProductName] auf Ihrem Computer.\nKlicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lesen Sie die folgende Lizenzvereinbarung sorgfältig durch.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synchronisierungsaktivität</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 hat einen Ordner für Sie freigegeben</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Vor %1 Tagen</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Der Bestätigungscode ist falsch oder abgelaufen.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Freigegebener Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Benutzerdefinierter Zeitraum</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Dieser Ordner ist schreibgeschützt. Änderungen auf diesem Computer werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ungültiger Parameter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Letzter Upload: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Sie können die Verbindungseinstellungen später ändern.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dateierweiterung</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Willkommen bei Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Dateien beim Verknüpfen eines Ordners zusammenführen</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Die Sicherung konnte nicht abgeschlossen werden. Prüfen Sie den Zielordner und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Dateien mit diesen Erweiterungen werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Geben Sie die Adresse Ihres Servers und Ihre Kontodaten ein.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Dieser Ordner überschneidet sich mit einem Ordner, der bereits synchronisiert wird.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Installation abbrechen</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Version nicht unterstützt</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Auf dem Server ist für diesen Ordner nicht mehr genügend Kontingent frei.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Doppelklicken, um die Erweiterung zu bearbeiten</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Die Installation von [ProductName] ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Der Assistent ist bereit, [ProductName] zu reparieren.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Immer die Datei vom Server verwenden</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Passwort wird geprüft...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Ändert, welche Funktionen von [ProductName] installiert sind.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Die Ordnerliste konnte wegen eines Netzwerkfehlers nicht geladen werden.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Diese Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Doppelklicken Sie auf das Symbol, um Driftwell zu öffnen.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Driftwell-Ordner in meinem Home-Ordner erstellen</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Driftwell-Ordner öffnen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>[ProductName] jetzt &amp;starten</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Erneut synchronisieren</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Diese Version von [ProductName] ist bereits installiert.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbindung erfolgreich hergestellt.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Der Proxyserver erfordert ein Passwort</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Installierte Funktionen ändern</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Wenn Sie fortfahren, müssen Sie Ihren Computer danach möglicherweise neu starten.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Ordner zum Synchronisieren auswählen</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Nach Servern in diesem Netzwerk suchen</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Dateien in diesem Ordner werden mit den Dateien auf dem Server zusammengeführt. Es wird nichts gelöscht.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Versehentlich eine Datei geändert? Stellen Sie eine frühere Version vom Server wieder her.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell wird gestartet...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Die Portnummer muss zwischen 1 und 65535 liegen.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Einhängepunkt nicht verfügbar</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles ist bereit</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert. Jetzt speichern?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisieren</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell hält die Dateien auf diesem Computer und auf Ihrem Server synchron.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Dateien in diesem Ordner mit denen auf dem Server zusammenführen?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Möchten Sie diese Synchronisierungsaufgabe wirklich entfernen? Bereits synchronisierte Dateien bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Nicht zu synchronisierende Dateitypen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synchronisierungsordner auf diesem Computer</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Erweiterungen beginnen mit einem Punkt, zum Beispiel .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Der Assistent ist bereit, [ProductName] zu entfernen.</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Ihre Änderungen wurden gespeichert.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Klicken Sie auf das Driftwell-Symbol in der Menüleiste, um zu sehen, was gerade synchronisiert wird.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nicht zu synchronisierende Dateinamen:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy manuell einrichten</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Relay-Dienst deaktiviert</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Die Verbindung ist instabil. Driftwell versucht es weiter.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von diesem Computer zu entfernen.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Diesen Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] wurde installiert</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Von einem anderen Programm gesperrt</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Wählen Sie einen Ordner auf dem Server und einen Ordner auf diesem Computer aus, die synchron gehalten werden sollen.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Führen Sie das Installationsprogramm später erneut aus, um es noch einmal zu versuchen. Klicken Sie auf „Fertig stellen“, um den Assistenten zu schließen.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Mit Ihrem Server verbinden</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Sie können höchstens %1 freigegebene Ordner synchronisieren.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Symbol an Dateien anzeigen, die nicht synchronisiert werden</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Bitte warten Sie, während der Assistent [ProductName] installiert.</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Driftwell beenden</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Auf diesem Computer ist nicht genügend freier Speicherplatz vorhanden.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Zwei-Wege-Synchronisierung</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Für dieses Element kann kein Freigabelink erstellt werden.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Geben Sie den Benutzernamen für den Proxyserver ein.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Mit dem Wartungs-Assistenten können Sie [ProductName] auf diesem Computer reparieren oder entfernen.\nKlicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Beide Dateien behalten und die ältere umbenennen</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Ich &amp;akzeptiere die Bedingungen der Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Frühere Versionen</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Klicken Sie auf „Installieren“, um zu beginnen. Um Ihre Einstellungen zu überprüfen oder zu ändern, klicken Sie auf „Zurück“.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Dateien, die größer als %1 MB sind, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Die Installation von [ProductName] wurde unterbrochen</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Verbindungsdetails</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blaue Pfeile bedeuten, dass eine Datei gerade synchronisiert wird.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Weiteren Server verknüpfen</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Ihr Driftwell-Ordner ist jetzt mit dem Server synchron.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktop-Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Übertragungswarteschlange</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Einrichtungsart auswählen</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell konnte nicht gestartet werden. Starten Sie Ihren Computer neu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Repariert fehlende oder beschädigte Dateien, Programmverknüpfungen und Registrierungseinträge von [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Update installieren</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] hält die von Ihnen ausgewählten Ordner mit Ihrem Server synchron.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Sie haben keine Berechtigung für den Zugriff auf diesen freigegebenen Ordner.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformationen</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Synchronisierungsmodus:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Dieser Ordner gehört zu einem anderen Server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Diese Datei kann zurzeit nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Muster ohne Platzhalter müssen dem gesamten Dateinamen entsprechen.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Ausgeschlossene Dateinamen</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Eine neuere Version von [ProductName] ist bereits installiert.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist aufgebraucht. Geben Sie Speicherplatz frei oder fordern Sie ein größeres Kontingent an.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>Programme automatisch &amp;schließen und danach neu starten</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Der lokale Synchronisierungsordner wurde nicht gefunden. Er wurde möglicherweise verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Der Assistent kopiert Dateien und aktualisiert Ihr System.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Beide Dateien behalten und der Kopie von diesem Computer den Computernamen hinzufügen</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Auf diesem Computer ist nicht genügend freier Speicherplatz vorhanden. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download-Verlauf</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist aufgebraucht.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Vor %1 Stunden</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Es kann kein Ordner synchronisiert werden.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Es wurde ein Konflikt erkannt. Beide Versionen wurden behalten.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Bereit zum Entfernen von [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Die neue Sprache wird nach dem Neustart von Driftwell verwendet.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Ordner wird bereits verwendet</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Driftwell wird aktualisiert...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Auf dem Server</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 ist ein Einhängepunkt und kann nicht als Synchronisierungsordner verwendet werden.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden gerade verwendet.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Keine Ereignisse vorhanden.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Änderungen an diesem Ordner auf diesem Computer werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisierungsverlauf</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Sie haben für diesen freigegebenen Ordner nur Lesezugriff.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Einfarbiges Menüleistensymbol verwenden</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Das Zertifikat des Servers hat sich geändert. Dem neuen Zertifikat vertrauen?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Vor %1 Minuten</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Geben Sie den Bestätigungscode aus Ihrer Authentifizierungs-App ein.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Sie haben keinen Zugriff auf diesen Ordner.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Neue Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Verwenden Sie * als Platzhalter für beliebige Zeichen, zum Beispiel ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden geprüft...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Die zuletzt geänderte Datei behalten</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Dieser Ordner wird bereits mit einem anderen freigegebenen Ordner synchronisiert.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Mit Ihrem eigenen Server synchronisieren</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Dieses Netzwerk durchsuchen</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Ihre Dateien, auf jedem Computer, den Sie nutzen.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Der Ordner auf dem Server ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Die Einrichtung ist abgeschlossen. Driftwell synchronisiert jetzt Ihre Dateien.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Bereit zur Reparatur von [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Führen Sie das Installationsprogramm erneut aus, um [ProductName] später zu installieren.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Ein Ordner kann nur zu einer Synchronisierungsaufgabe gehören.</translation>
    </message>
</context>
</TS>
