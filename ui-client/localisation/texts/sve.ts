<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Serverns certifikat har ändrats sedan den senaste anslutningen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Synkroniseringsuppgiften kunde inte skapas. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
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
        <translation>Visa introduktionen</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Filer som finns på båda ställena behålls, och den äldre kopian byter namn.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Senaste 7 dagarna</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Serverns säkerhetscertifikat kunde inte verifieras.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Vill du sluta synkronisera den här delade mappen? Filerna finns kvar på servern.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>Stäng inte &amp;programmen (en omstart kan behövas)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell är redo.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Den delade mappens kvot är förbrukad.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Nedladdningen stoppades.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Installera [ProductName] på den här datorn.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Via relätjänsten</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borttagen</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell har konfigurerats och har börjat synkronisera.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell kunde inte nå relätjänsten på grund av ett systemfel. Försök igen senare.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Det gick inte att upprätta en säker anslutning till servern.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Välj vilka delade mappar på servern som ska synkroniseras med den här datorn.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Installerar [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Fler tips</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Lägg till en synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell uppdateras. Vänta.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Öppna Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
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
        <translation>%1 kunde inte laddas ned.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Inga ändringar har gjorts på datorn.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Visa ikoner för synkroniseringsstatus på filer och mappar</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Välj mappen som ska synkroniseras.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Filer i mappar som du avmarkerar tas bort från den här datorn men finns kvar på servern.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Synkroniseringsmappen ligger på en volym som inte är monterad. Anslut volymen för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Välkommen till Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Uppdateringen misslyckades. Den tidigare versionen används fortfarande.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 har uppdaterats</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation av [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell initieras...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Guiden avbröts innan den var klar.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ändra</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autentiseringen misslyckades</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Servern svarade på ett sätt som Driftwell inte förstår. Uppdatera servern och klienten till den senaste versionen.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Synkroniseringsriktningen för den här mappen skiljer sig från den som har angetts på servern.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Bearbetar %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Mappen %1 kunde inte skapas.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Anpassad konfiguration</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Servern kör en äldre version som Driftwell inte stöder. Uppdatera servern.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Synkroniseringsriktningen skiljer sig från serverns inställning.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tillbaka</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Servern tar inte emot anslutningar från den här IP-adressen. Be administratören om åtkomst.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserar %1 filer</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på servern är full.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Slutförd</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Om %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Disken på den här datorn är full. Synkroniseringen har pausats.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Sluta synkronisera den här mappen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Disken på den här datorn är full.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar från...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Nätverksanslutningen bröts. Driftwell återansluter automatiskt.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klicka på Slutför för att stänga guiden.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>En ny version är klar. Klicka för att installera den.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Filer laddas ned men laddas aldrig upp.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Tillåt anslutningar via relätjänsten</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Den delade mappen finns inte längre på servern.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Den här versionen av Driftwell är för gammal för servern. Installera den senaste versionen.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Klicka på Avbryt för att avsluta guiden utan att installera.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn för den här mappen.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Relätjänsten hittade ingen väg till din server. Kontrollera att servern är online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Den delade mappen på servern är inte monterad. Montera den på servern och försök igen.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Mappen är inte tom. Filerna i den sammanfogas med filerna på servern.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Delningslänkar är inte tillgängliga via relätjänsten.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvot på servern är förbrukad.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdöpt</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Undantagna mappar...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Den lokala synkroniseringsdatabasen är skadad. Koppla från mappen och koppla den igen för att bygga om databasen.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Klicka på Reparera för att reparera installationen av [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Verifieringskod:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Det går inte att visa tidigare versioner av den här filen.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Administratören har stängt av synkroniseringen av den här mappen.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>När synkroniseringen är klar:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell gav upp efter %1 försök. Kontrollera nätverket och försök igen.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Lägg filer i Driftwell-mappen så visas de på din server och dina andra datorer.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ta &amp;bort</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Instabil anslutning</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Guiden har allt den behöver för att påbörja installationen.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Kontrollera inställningarna och klicka sedan på Klar för att börja synkronisera.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Du behöver administratörsbehörighet för att installera [ProductName]. Vill du fortsätta ändå?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Slutfört</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Mappen %1 synkroniseras redan av en annan uppgift.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Välj vad du vill göra.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Servern på den här adressen har ändrats. Koppla synkroniseringsuppgiften igen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Relätjänsten är avstängd på servern. Anslut direkt eller aktivera tjänsten.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell har ingen anslutning till någon server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Välj själv mapparna på servern och på den här datorn.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Öppna inställningarna om du vill ändra vad som synkroniseras.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Serverns säkerhetscertifikat har ändrats. Bekräfta att du litar på det nya certifikatet.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Anslutningen till servern stängdes.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indexerar den här mappen.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Uppdatering tillgänglig</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Mappar i den här listan synkroniseras aldrig.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Säkerhetskopiera till:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synkronisera din hemmapp på servern med en Driftwell-mapp på den här datorn.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Mapplistan kunde inte läsas in på grund av ett systemfel.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Ändra, reparera eller ta bort [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Filer i den här mappen synkroniseras med servern.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] kunde inte installeras. Inga ändringar har gjorts på datorn.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximal filstorlek</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Följande program använder filer som installationsprogrammet för [ProductName] måste uppdatera.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparera installationen</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar att installera [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Synkronisera inte filer som är större än:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Utrymme på den här datorn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Administratören kräver tvåstegsverifiering. Aktivera den för ditt konto först.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Välj filer att synkronisera</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Ta bort programmet</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Synkroniserar nu: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Starta Driftwell när jag loggar in</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Logga in på din server för att komma igång.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Den delade mappen kunde inte aktiveras för synkronisering.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Krypterad anslutning</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Till:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] har inga funktioner som kan ändras.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Snabbkonfiguration använder de rekommenderade inställningarna. Med anpassad konfiguration väljer du varje inställning själv.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>När en fil har ändrats på båda sidor:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Den här filen har inga tidigare versioner.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Välj...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>En grön bock betyder att filen är aktuell.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Välj mapparna som ska säkerhetskopieras</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Undantagna filer:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Om du kopplar från slutar datorn att synkronisera med den här servern. Dina filer finns kvar på den här datorn. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Visa i Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Ett fel stoppade installationsguiden för [ProductName].</translation>
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
        <translation>Synkroniseringsstatus med en blick</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Tar bort [ProductName] från den här datorn. Dina synkroniserade filer ligger kvar där de är.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Den här mappen kan inte användas för synkronisering. Välj en annan.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 delade mappen ”%2” med dig.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Välj en mapp som ingen annan synkroniseringsuppgift använder.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Dina synkroniserade filer och mappar tas inte bort.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Uppdatera Driftwell för att använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Använd en krypterad anslutning (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Byt mapp...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Välj mappar</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyder ingen gräns.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Sökord</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Visa synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Behåll filer på servern när jag tar bort dem på den här datorn</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Välj en mapp på servern.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På den här datorn</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 har laddats ned.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Klicka på Tillbaka för att granska ditt val eller på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Behöver du hjälp med konfigurationen? Öppna onlinehandboken.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Stäng programmen och klicka på Försök igen, eller klicka på Ignorera för att fortsätta ändå.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jag godkänner &amp;inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell har upptäckt ändringar i dina mappar och synkroniserar dem.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Ingen mapp har valts.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Välj ytterligare ett par mappar som ska hållas synkroniserade.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Ange serverns värdnamn, IP-adress eller relä-ID.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Välkommen till installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Välj vilken åtgärd du vill utföra för [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Användarnamnet är inte giltigt på den här servern.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Relä-ID:t är ogiltigt. Kontrollera ID:t och försök igen.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Något gick fel. Försök igen senare.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Din Driftwell-mapp</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Skicka till %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Du måste godkänna villkoren i det här avtalet för att installera [ProductName].</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Vill du verkligen koppla den här datorn från servern?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Arbeta från menyraden</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Därifrån kan du pausa synkroniseringen eller öppna inställningarna.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Filer kan inte delas via en reläanslutning.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ändringar på nätverksenheter kan upptäckas med fördröjning.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 av %2 filer bearbetade</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Identifierar anslutningstypen...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>De mappar du väljer kopieras till servern. Om du tar bort en fil på den här datorn tas inte säkerhetskopian av den bort.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveröversikt</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mapp</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Filen är låst av ett annat program.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>I vänteläge</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Återanslut</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Välkommen till underhållsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Vill du verkligen avbryta installationen av [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Den här datorn är redan kopplad till den här servern.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Kopiera en delningslänk</translation>
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
        <translation>Användarnamnet eller lösenordet är felaktigt. Ange dem igen.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Vill du ta bort den här delade mappen från listan?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Dina filer stannar på din egen server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Den delade mappen kunde inte tas bort från listan.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privat, snabbt och alltid aktuellt</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Sluta synkronisera de här mapparna</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nyligen ändrade</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Anslutningen till servern är instabil. Driftwell fortsätter att försöka återansluta.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerar [ProductName] på datorn.\nKlicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synkroniseringsaktivitet</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 delade en mapp med dig</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dagar sedan</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Verifieringskoden är felaktig eller har gått ut.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delade mappen hittades inte</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Anpassat intervall</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Den här mappen är skrivskyddad. Ändringar på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ogiltig parameter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Senaste uppladdning: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Du kan ändra anslutningsinställningarna senare.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filändelse</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Välkommen till Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Sammanfoga filer när en mapp kopplas</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Säkerhetskopieringen kunde inte slutföras. Kontrollera målmappen och försök igen.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Från:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Filer med de här filändelserna synkroniseras inte.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Ange adressen till din server och dina kontouppgifter.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Den här mappen överlappar en mapp som redan synkroniseras.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Avbryt installationen</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versionen stöds inte</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Det finns inte tillräckligt med kvot kvar på servern för den här mappen.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten måste vara ett tal från 1 till 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Dubbelklicka för att redigera filändelsen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Installationen av [ProductName] misslyckades</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Guiden är redo att reparera [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Nedladdad</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Använd alltid filen från servern</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerar ditt lösenord...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Här kan du ändra vilka funktioner i [ProductName] som installeras.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testa anslutningen</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Mapplistan kunde inte läsas in på grund av ett nätverksfel.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Inte ansluten</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkronisera de här mapparna igen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorera</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Dubbelklicka på ikonen för att öppna Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Skapa en Driftwell-mapp i min hemmapp</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Öppna Driftwell-mappen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>St&amp;arta [ProductName] nu</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Försök synkronisera igen</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Den här versionen av [ProductName] är redan installerad.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen lyckades.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyservern kräver ett lösenord</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ändra de installerade funktionerna</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Om du fortsätter kan du behöva starta om datorn efteråt.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Välj mappar att synkronisera</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Sök efter servrar i det här nätverket</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Filerna i den här mappen sammanfogas med filerna på servern. Inget tas bort.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Har du ändrat en fil av misstag? Återställ en tidigare version från servern.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell startar...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Portnumret måste vara mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Monteringspunkten är inte tillgänglig</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Nu är allt klart</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Dina ändringar har inte sparats. Vill du spara dem nu?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisera</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell håller filerna på den här datorn och på din server synkroniserade.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Vill du sammanfoga filerna i den här mappen med filerna på servern?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Vill du verkligen ta bort den här synkroniseringsuppgiften? Filer som redan har synkroniserats finns kvar på den här datorn.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Filtyper som inte ska synkroniseras</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synkroniseringsmapp på den här datorn</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Filändelser börjar med en punkt, till exempel .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Guiden är redo att ta bort [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Dina ändringar har sparats.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Klicka på Driftwell-ikonen i menyraden för att se vad som synkroniseras.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Filnamn som inte ska synkroniseras:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mapp:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurera proxyn manuellt</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Relätjänsten är inaktiverad</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Anslutningen är instabil. Driftwell fortsätter att försöka.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från den här datorn.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkronisera den här mappen igen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] har installerats</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Nyss</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst av ett annat program</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Välj en mapp på servern och en mapp på den här datorn som ska hållas synkroniserade.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Kör installationsprogrammet igen senare om du vill försöka igen. Klicka på Slutför för att stänga guiden.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Anslut till din server</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Du kan synkronisera högst %1 delade mappar.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Nästa &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Visa en ikon på filer som inte synkroniseras</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Vänta medan guiden installerar [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Avsluta Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Inget har ändrats.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tvåvägssynkronisering</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Det går inte att skapa en delningslänk för det här objektet.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Ange användarnamnet för proxyservern.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Senaste 30 dagarna</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändra...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Med underhållsguiden kan du reparera eller ta bort [ProductName] på den här datorn.\nKlicka på Nästa för att fortsätta eller på Avbryt för att avsluta.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Behåll båda filerna och byt namn på den äldre</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jag &amp;godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Tidigare versioner</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 körs redan.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Klicka på Installera för att börja. Klicka på Tillbaka om du vill granska eller ändra någon av inställningarna.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Filer som är större än %1 MB synkroniseras inte.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Installationen av [ProductName] avbröts</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blå pilar betyder att en fil håller på att synkroniseras.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Koppla ytterligare en server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Verkställer inställningarna...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Ange ett användarnamn.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Din Driftwell-mapp är nu synkroniserad med servern.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Överföringskö</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Välj konfigurationstyp</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell kunde inte starta. Starta om datorn och försök igen.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Åtgärdar saknade eller skadade filer, genvägar och registerposter för [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 till %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installera uppdateringen</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] håller de mappar du väljer synkroniserade med din server.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sammanfoga</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] har installerats.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har inte behörighet att komma åt den här delade mappen.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>A&amp;vsluta</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>och %1 till</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Synkroniseringsläge:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Den här mappen hör till en annan server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Den här filen kan inte laddas ned just nu.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Mönster utan jokertecken måste matcha hela filnamnet.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Undantagna filnamn</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>En nyare version av [ProductName] är redan installerad.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Din lagringskvot på servern är förbrukad. Frigör utrymme eller be om en större kvot.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Stäng programmen automatiskt och starta om dem efteråt</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Den lokala synkroniseringsmappen hittades inte. Den kan ha flyttats eller tagits bort.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Guiden kopierar filer och uppdaterar systemet.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Behåll båda filerna och lägg till datornamnet i kopian från den här datorn</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn. Frigör utrymme för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Uppdaterade filer</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Din lagringskvot på servern är förbrukad.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 timmar sedan</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Ingen mapp kan synkroniseras.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>En konflikt upptäcktes. Båda versionerna behölls.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Det nya språket används när Driftwell har startats om.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Mappen används redan</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Uppdaterar Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensavtal</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>På servern</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 är en monteringspunkt och kan inte användas som synkroniseringsmapp.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Vissa filer som behöver uppdateras används.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Det finns inga händelser att visa.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Ändringar i den här mappen på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Du har bara läsbehörighet till den här delade mappen.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Använd en svartvit ikon i menyraden</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Serverns certifikat har ändrats. Vill du lita på det nya certifikatet?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 minuter sedan</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Ange verifieringskoden från din autentiseringsapp.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Du har inte åtkomst till den här mappen.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Använd * för att matcha valfria tecken, till exempel ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerar filer...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Det här kan ta några minuter.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Behåll filen som ändrades senast</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Den här mappen synkroniseras redan med en annan delad mapp.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synkronisera med din egen server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Sök i det här nätverket</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Dina filer, på alla datorer du använder.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Mappen på servern är inte tillgänglig.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Konfigurationen är klar. Driftwell synkroniserar nu dina filer.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar att reparera [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Kör installationsprogrammet igen om du vill installera [ProductName] senare.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>En mapp kan bara höra till en synkroniseringsuppgift.</translation>
    </message>
</context>
</TS>
