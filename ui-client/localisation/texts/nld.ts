<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Het certificaat van de server is gewijzigd sinds de laatste verbinding.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>De synchronisatietaak kan niet worden gemaakt. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
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
        <translation>Uitleg weergeven</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Bestanden die op beide plaatsen bestaan, worden behouden en de oudere kopie krijgt een nieuwe naam.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Afgelopen 7 dagen</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Het beveiligingscertificaat van de server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Deze gedeelde map niet meer synchroniseren? De bestanden blijven op de server.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Account:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Programma's niet sluiten (mogelijk moet de computer opnieuw worden opgestart)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell is klaar.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Het quotum van de gedeelde map is opgebruikt.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Het downloaden is gestopt.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>[ProductName] op deze computer installeren.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Via de relayservice</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell is ingesteld en is begonnen met synchroniseren.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell kan de relayservice niet bereiken door een systeemfout. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Er kan geen beveiligde verbinding met de server worden gemaakt.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Kies welke gedeelde mappen op de server met deze computer worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}[ProductName] installeren</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Meer tips</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell wordt bijgewerkt. Even geduld.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Driftwell openen</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
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
        <translation>%1 kan niet worden gedownload.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Er is niets gewijzigd op je computer.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pictogrammen voor synchronisatiestatus weergeven op bestanden en mappen</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Kies de map die je wilt synchroniseren.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Bestanden in mappen die je deselecteert, worden van deze computer verwijderd maar blijven op de server.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>De synchronisatiemap staat op een volume dat niet is aangekoppeld. Sluit het volume aan om verder te synchroniseren.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 onderdelen</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Welkom bij Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>De update is mislukt. De vorige versie wordt nog gebruikt.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchroniseren...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 is bijgewerkt</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installatie van [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell wordt geïnitialiseerd...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>De wizard is gestopt voordat deze was voltooid.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Wijzigen</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authenticatie mislukt</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>De server gaf een antwoord dat Driftwell niet begrijpt. Werk de server en de client bij naar de nieuwste versie.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>De synchronisatierichting van deze map verschilt van de richting die op de server is ingesteld.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>%1 wordt verwerkt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>De map %1 kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Aangepaste configuratie</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Op de server draait een oudere versie die Driftwell niet ondersteunt. Werk de server bij.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>De synchronisatierichting verschilt van de instelling op de server.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; V&amp;orige</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>De server accepteert geen verbindingen vanaf dit IP-adres. Vraag je beheerder om toegang.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 bestanden worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>De schijf op de server is vol.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Over %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>De schijf van deze computer is vol. De synchronisatie is gepauzeerd.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Deze map niet meer synchroniseren</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>De schijf van deze computer is vol.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>De netwerkverbinding is verbroken. Driftwell maakt automatisch opnieuw verbinding.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klik op Voltooien om de wizard te sluiten.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Er is een nieuwe versie beschikbaar. Klik om deze te installeren.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Je hebt alleen leestoegang tot deze map. Bestanden worden gedownload maar nooit geüpload.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Verbindingen via de relayservice toestaan</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinding maken...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>De gedeelde map bestaat niet meer op de server.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Deze versie van Driftwell is te oud voor de server. Installeer de nieuwste versie.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Klik op Annuleren om de wizard af te sluiten zonder te installeren.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Er is niet genoeg vrije ruimte op deze computer voor deze map.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>De relayservice kan geen route naar je server vinden. Controleer of de server online is.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>De gedeelde map is niet aangekoppeld op de server. Koppel de map aan op de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>De map is niet leeg. De bestanden worden samengevoegd met de bestanden op de server.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Deellinks zijn niet beschikbaar via de relayservice.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Je quotum op de server is opgebruikt.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Uitgesloten mappen...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>De lokale synchronisatiedatabase is beschadigd. Ontkoppel de map en koppel deze opnieuw om de database opnieuw op te bouwen.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Klik op Herstellen om de installatie van [ProductName] te herstellen.</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Verificatiecode:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>De vorige versies van dit bestand kunnen niet worden weergegeven.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Synchronisatie van deze map is uitgeschakeld door je beheerder.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Als de synchronisatie klaar is:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell is na %1 pogingen gestopt. Controleer je netwerk en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Zet bestanden in de Driftwell-map en ze verschijnen op je server en je andere computers.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>V&amp;erwijderen</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Verbinding instabiel</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>De wizard heeft alle gegevens om met de installatie te beginnen.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Controleer je instellingen en klik op Gereed om te beginnen met synchroniseren.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Je hebt beheerdersrechten nodig om [ProductName] te installeren. Toch doorgaan?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>De map %1 wordt al door een andere synchronisatietaak gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Kies wat je wilt doen.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>De server op dit adres is gewijzigd. Koppel de synchronisatietaak opnieuw.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>De relayservice is uitgeschakeld op de server. Maak rechtstreeks verbinding of schakel de service in.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell is niet verbonden met een server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindingstype</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Kies zelf de mappen op de server en op deze computer.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Open de instellingen om te wijzigen wat er wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Het beveiligingscertificaat van de server is gewijzigd. Bevestig dat je het nieuwe certificaat vertrouwt.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>De verbinding met de server is gesloten.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indexeert deze map.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update beschikbaar</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Mappen in deze lijst worden nooit gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Back-up maken naar:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synchroniseer je thuismap op de server met een Driftwell-map op deze computer.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>De mappenlijst kan niet worden geladen door een systeemfout.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>[ProductName] wijzigen, herstellen of verwijderen.</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Bestanden in deze map worden gesynchroniseerd met de server.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] kan niet worden geïnstalleerd. Er is niets gewijzigd op je computer.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>De volgende programma's gebruiken bestanden die de installatie van [ProductName] moet bijwerken.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>De installatie herstellen</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klaar om [ProductName] te installeren</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Geen bestanden synchroniseren die groter zijn dan:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Taal:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Ruimte op deze computer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Je beheerder vereist verificatie in twee stappen. Schakel deze eerst in voor je account.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Bestanden kiezen om te synchroniseren</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Het programma verwijderen</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Wordt gesynchroniseerd: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Driftwell starten wanneer ik inlog</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Log in bij je server om te beginnen.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>De gedeelde map kan niet worden ingeschakeld voor synchronisatie.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Rechtstreekse verbinding</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Versleutelde verbinding</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Tot:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] heeft geen onderdelen die kunnen worden gewijzigd.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina's</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Snelle configuratie gebruikt de aanbevolen instellingen. Bij aangepaste configuratie kies je elke instelling zelf.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Als een bestand aan beide kanten is gewijzigd:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Dit bestand heeft geen eerdere versies.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Selecteren...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Een groen vinkje betekent dat een bestand bijgewerkt is.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Mappen kiezen voor de back-up</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Uitgesloten bestanden:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Door te ontkoppelen stopt de synchronisatie met deze server. Je bestanden blijven op deze computer. Doorgaan?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Weergeven in Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Door een fout is de installatiewizard van [ProductName] gestopt.</translation>
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
        <translation>Synchronisatiestatus in één oogopslag</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Verwijdert [ProductName] van deze computer. Je gesynchroniseerde bestanden blijven waar ze zijn.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Deze map kan niet worden gebruikt voor synchronisatie. Kies een andere map.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 heeft de map ‘%2’ met je gedeeld.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Kies een map die niet door een andere synchronisatietaak wordt gebruikt.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Je gesynchroniseerde bestanden en mappen worden niet verwijderd.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Werk Driftwell bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Een versleutelde verbinding gebruiken (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Map wijzigen...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Mappen kiezen</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betekent geen limiet.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisatiestatus weergeven</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Bestanden op de server behouden als ik ze op deze computer verwijder</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Kies een map op de server.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Op deze computer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 is gedownload.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Klik op Vorige om je keuze te controleren of op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Hulp nodig bij het instellen? Open de online handleiding.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Sluit deze programma's en klik op Opnieuw, of klik op Negeren om toch door te gaan.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>De proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Bestanden in gebruik</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Ik ga &amp;niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell heeft wijzigingen in je mappen gevonden en synchroniseert ze.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Geen map geselecteerd.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Kies nog een mappenpaar om gesynchroniseerd te houden.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Voer de hostnaam, het IP-adres of de relay-ID van de server in.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Welkom bij de installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Selecteer de bewerking die je wilt uitvoeren voor [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>De gebruikersnaam is niet geldig op deze server.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>De relay-ID is ongeldig. Controleer de ID en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Er is iets misgegaan. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Je Driftwell-map</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Verzenden naar %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Om [ProductName] te installeren, moet je akkoord gaan met de voorwaarden van deze overeenkomst.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Weet je zeker dat je deze computer wilt ontkoppelen van de server?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Werken vanuit de menubalk</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Van daaruit kun je de synchronisatie pauzeren of je instellingen openen.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Bestanden kunnen niet worden gedeeld via een relayverbinding.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Wijzigingen op netwerkschijven worden mogelijk met vertraging gedetecteerd.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 van %2 bestanden verwerkt</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Map selecteren</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Andere map kiezen</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Verbindingstype detecteren...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>De mappen die je kiest, worden naar de server gekopieerd. Als je een bestand op deze computer verwijdert, wordt de back-up ervan niet verwijderd.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroverzicht</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokale map</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Dit bestand is vergrendeld door een ander programma.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Welkom bij de onderhoudswizard van [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Weet je zeker dat je de installatie van [ProductName] wilt annuleren?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Deze computer is al gekoppeld aan deze server.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Deellink kopiëren</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersie:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist. Voer ze opnieuw in.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Deze gedeelde map uit de lijst verwijderen?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Je bestanden blijven op je eigen server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>De gedeelde map kan niet uit de lijst worden verwijderd.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privé, snel en altijd bijgewerkt</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Deze mappen niet meer synchroniseren</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Recent gewijzigd</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>De verbinding met de server is instabiel. Driftwell blijft proberen opnieuw verbinding te maken.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>De installatiewizard installeert [ProductName] op je computer.\nKlik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synchronisatieactiviteit</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Vorige versies bekijken</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 heeft een map met je gedeeld</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dagen geleden</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>De verificatiecode is onjuist of verlopen.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Aangepaste periode</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Deze map is alleen-lezen. Wijzigingen op deze computer worden niet geüpload.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ongeldige parameter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Laatste upload: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Je kunt de verbindingsinstellingen later wijzigen.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Bestandsextensie</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Welkom bij Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Bestanden samenvoegen bij het koppelen van een map</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>De back-up kan niet worden voltooid. Controleer de doelmap en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Van:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wachtend</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Bestanden met deze extensies worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Voer het adres van je server en je accountgegevens in.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Deze map overlapt met een map die al wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Installatie annuleren</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versie niet ondersteund</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Er is niet genoeg quotum meer op de server voor deze map.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>De poort moet een getal van 1 tot en met 65535 zijn.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Dubbelklik om de extensie te bewerken</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}De installatie van [ProductName] is mislukt</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>De wizard is klaar om [ProductName] te herstellen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Altijd het bestand van de server gebruiken</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Wachtwoord controleren...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Hiermee wijzig je welke onderdelen van [ProductName] zijn geïnstalleerd.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Verbinding testen</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>De mappenlijst kan niet worden geladen door een netwerkfout.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Deze mappen weer synchroniseren</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Negeren</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Dubbelklik op het pictogram om Driftwell te openen.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Een Driftwell-map maken in mijn thuismap</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>De Driftwell-map openen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>[ProductName] nu &amp;starten</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Synchronisatie opnieuw proberen</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Deze versie van [ProductName] is al geïnstalleerd.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbinding gemaakt.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>De proxyserver vereist een wachtwoord</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>De geïnstalleerde onderdelen wijzigen</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Als je doorgaat, moet je je computer daarna mogelijk opnieuw opstarten.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Mappen kiezen om te synchroniseren</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Zoeken naar servers in dit netwerk</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Bestanden in deze map worden samengevoegd met de bestanden op de server. Er wordt niets verwijderd.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Per ongeluk een bestand gewijzigd? Zet een eerdere versie terug vanaf de server.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell wordt gestart...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Het poortnummer moet tussen 1 en 65535 liggen.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Aankoppelpunt niet beschikbaar</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles is klaar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Je wijzigingen zijn niet opgeslagen. Nu opslaan?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchroniseren</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell houdt de bestanden op deze computer en op je server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>De bestanden in deze map samenvoegen met die op de server?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Weet je zeker dat je deze synchronisatietaak wilt verwijderen? Bestanden die al zijn gesynchroniseerd, blijven op deze computer.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Voltooien</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Bestandstypen die niet worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synchronisatiemap op deze computer</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Extensies beginnen met een punt, bijvoorbeeld .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>De wizard is klaar om [ProductName] te verwijderen.</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Je wijzigingen zijn opgeslagen.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Klik op het Driftwell-pictogram in de menubalk om te zien wat er wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Bestandsnamen die niet worden gesynchroniseerd:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy handmatig instellen</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Relayservice uitgeschakeld</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>De verbinding is instabiel. Driftwell blijft het proberen.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Klik op Verwijderen om [ProductName] van deze computer te verwijderen.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Deze map weer synchroniseren</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] is geïnstalleerd</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Vergrendeld door een ander programma</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Kies een map op de server en een map op deze computer om gesynchroniseerd te houden.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Voer het installatieprogramma later opnieuw uit om het nog eens te proberen. Klik op Voltooien om de wizard te sluiten.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Verbinding maken met je server</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Je kunt maximaal %1 gedeelde mappen synchroniseren.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Volgende &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Een pictogram weergeven op bestanden die niet worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina's</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Even geduld terwijl de wizard [ProductName] installeert.</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Driftwell afsluiten</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Er is niet genoeg vrije ruimte op deze computer.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Er is niets gewijzigd.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisatie in twee richtingen</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Voor dit item kan geen deellink worden gemaakt.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Voer de gebruikersnaam voor de proxyserver in.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Afgelopen 30 dagen</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Wijzigen...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Met de onderhoudswizard kun je [ProductName] op deze computer herstellen of verwijderen.\nKlik op Volgende om door te gaan of op Annuleren om af te sluiten.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Beide bestanden behouden en het oudere hernoemen</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Ik ga &amp;akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Vorige versies</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 is al actief.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Klik op Installeren om te beginnen. Klik op Vorige om je instellingen te controleren of te wijzigen.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Bestanden groter dan %1 MB worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}De installatie van [ProductName] is onderbroken</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blauwe pijlen betekenen dat een bestand wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Nog een server koppelen</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Voer een gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Je Driftwell-map is nu gesynchroniseerd met de server.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overdrachtswachtrij</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Configuratietype kiezen</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell kan niet worden gestart. Start je computer opnieuw op en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Herstelt ontbrekende of beschadigde bestanden, snelkoppelingen en registervermeldingen van [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 tot %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Update installeren</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] houdt de mappen die je kiest gesynchroniseerd met je server.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] is met succes geïnstalleerd.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Je hebt geen toegangsrechten voor deze gedeelde map.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformatie</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Synchronisatiemodus:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Map is alleen-lezen</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Deze map hoort bij een andere server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Dit bestand kan nu niet worden gedownload.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Patronen zonder jokerteken moeten overeenkomen met de hele bestandsnaam.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Uitgesloten bestandsnamen</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Er is al een nieuwere versie van [ProductName] geïnstalleerd.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Je opslagquotum op de server is opgebruikt. Maak ruimte vrij of vraag om een groter quotum.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>Programma's automatisch &amp;sluiten en daarna opnieuw starten</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>De lokale synchronisatiemap kan niet worden gevonden. Mogelijk is deze verplaatst of verwijderd.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>De wizard kopieert bestanden en werkt je systeem bij.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Beide bestanden behouden en de computernaam toevoegen aan de kopie van deze computer</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Er is niet genoeg vrije ruimte op deze computer. Maak ruimte vrij om verder te synchroniseren.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Bestanden bijgewerkt</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Je opslagquotum op de server is opgebruikt.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Er kan geen enkele map worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Er is een conflict gevonden. Beide versies zijn behouden.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klaar om [ProductName] te verwijderen</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>De nieuwe taal wordt gebruikt nadat Driftwell opnieuw is gestart.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Map al in gebruik</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Driftwell wordt bijgewerkt...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licentieovereenkomst</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Op de server</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 is een aankoppelpunt en kan niet worden gebruikt als synchronisatiemap.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn in gebruik.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Geen gebeurtenissen om weer te geven.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Wijzigingen in deze map op deze computer worden niet geüpload.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisatiegeschiedenis</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Je hebt alleen leestoegang tot deze gedeelde map.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Een zwart-wit menubalkpictogram gebruiken</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snelle configuratie</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Map is niet leeg</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Het certificaat van de server is gewijzigd. Het nieuwe certificaat vertrouwen?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Schijf vol</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Voer de verificatiecode uit je authenticatie-app in.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Je hebt geen toegang tot deze map.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nieuwe synchronisatietaak</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Gebruik * voor willekeurige tekens, bijvoorbeeld ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Bestanden controleren...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Het laatst gewijzigde bestand behouden</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Deze map wordt al gesynchroniseerd met een andere gedeelde map.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synchroniseer met je eigen server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Dit netwerk doorzoeken</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Je bestanden, op elke computer die je gebruikt.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>De map op de server is niet beschikbaar.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>De configuratie is voltooid. Driftwell synchroniseert nu je bestanden.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klaar om [ProductName] te herstellen</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Voer het installatieprogramma opnieuw uit om [ProductName] later te installeren.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Een map kan maar bij één synchronisatietaak horen.</translation>
    </message>
</context>
</TS>
