<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Serverens certifikat er ændret siden sidste forbindelse.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Synkroniseringsopgaven kunne ikke oprettes. Kontrollér forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis vejledningen</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Filer, der findes begge steder, bevares, og den ældre kopi omdøbes.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Seneste 7 dage</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Serverens sikkerhedscertifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Vil du stoppe synkroniseringen af denne delte mappe? Filerne forbliver på serveren.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Undlad at lukke programmerne (en genstart kan være nødvendig)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell er klar.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Kvoten for den delte mappe er opbrugt.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Downloadet blev stoppet.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Installer [ProductName] på denne computer.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Via relætjenesten</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell er konfigureret og er begyndt at synkronisere.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell kunne ikke nå relætjenesten på grund af en systemfejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse til serveren.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Vælg, hvilke delte mapper på serveren der skal synkroniseres med denne computer.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Installerer [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Flere tips</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Tilføj en synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell opdateres. Vent venligst.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Åbn Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
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
        <translation>%1 kunne ikke downloades.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Der er ikke foretaget ændringer på din computer.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Adgangskode:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Vælg den mappe, der skal synkroniseres.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Filer i mapper, du fravælger, fjernes fra denne computer, men forbliver på serveren.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Synkroniseringsmappen ligger på et drev, der ikke er monteret. Tilslut drevet for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Velkommen til Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>Opdateringen mislykkedes. Den tidligere version bruges stadig.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 blev opdateret</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell initialiseres...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Guiden blev afbrudt, før den var færdig.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ændr</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkendelse mislykkedes</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Serveren svarede på en måde, som Driftwell ikke forstår. Opdater serveren og klienten til den nyeste version.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Synkroniseringsretningen for denne mappe er forskellig fra den, der er angivet på serveren.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Behandler %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Mappen %1 kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Brugerdefineret opsætning</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Serveren kører en ældre version, som Driftwell ikke understøtter. Opdater serveren.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Synkroniseringsretningen er forskellig fra indstillingen på serveren.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbage</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Serveren accepterer ikke forbindelser fra denne IP-adresse. Bed din administrator om adgang.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserer %1 filer</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på serveren er fuld.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fuldført</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Om %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Disken på denne computer er fuld. Synkroniseringen er sat på pause.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Stop synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Disken på denne computer er fuld.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Netværksforbindelsen blev afbrudt. Driftwell genopretter forbindelsen automatisk.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klik på Udfør for at lukke guiden.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>En ny version er klar. Klik for at installere den.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Du har kun læseadgang til denne mappe. Filer bliver downloadet, men aldrig uploadet.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Tillad forbindelser via relætjenesten</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Den delte mappe findes ikke længere på serveren.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Denne version af Driftwell er for gammel til serveren. Installer den nyeste version.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Klik på Annuller for at afslutte guiden uden at installere.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Der er ikke nok ledig plads på denne computer til denne mappe.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Relætjenesten kunne ikke finde en rute til din server. Kontrollér, at serveren er online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Den delte mappe er ikke monteret på serveren. Montér den på serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Mappen er ikke tom. Dens filer flettes med filerne på serveren.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Delingslinks er ikke tilgængelige via relætjenesten.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvote på serveren er opbrugt.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Udeladte mapper...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Den lokale synkroniseringsdatabase er beskadiget. Fjern mappens tilknytning, og tilknyt den igen for at genopbygge databasen.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Klik på Reparer for at reparere installationen af [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Bekræftelseskode:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>De tidligere versioner af denne fil kan ikke vises.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Synkronisering af denne mappe er slået fra af din administrator.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Når synkroniseringen er færdig:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell opgav efter %1 forsøg. Kontrollér dit netværk, og prøv igen.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Læg filer i Driftwell-mappen, så vises de på din server og dine andre computere.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Ustabil forbindelse</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Guiden har alt, hvad den behøver for at starte installationen.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Kontrollér dine indstillinger, og klik derefter på Færdig for at starte synkroniseringen.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Du skal have administratorrettigheder for at installere [ProductName]. Vil du fortsætte alligevel?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Mappen %1 synkroniseres allerede af en anden synkroniseringsopgave.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Vælg, hvad du vil gøre.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Serveren på denne adresse er ændret. Tilknyt synkroniseringsopgaven igen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Relætjenesten er slået fra på serveren. Opret forbindelse direkte, eller slå tjenesten til.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell har ikke forbindelse til en server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Vælg selv mapperne på serveren og på denne computer.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Åbn indstillingerne for at ændre, hvad der synkroniseres.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Serverens sikkerhedscertifikat er ændret. Bekræft, at du har tillid til det nye certifikat.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Forbindelsen til serveren blev lukket.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indekserer denne mappe.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Opdatering tilgængelig</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Mapper på denne liste synkroniseres aldrig.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Sikkerhedskopiér til:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synkroniser din hjemmemappe på serveren med en Driftwell-mappe på denne computer.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Mappelisten kunne ikke indlæses på grund af en systemfejl.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Ændr, reparer eller fjern [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Filer i denne mappe synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] kunne ikke installeres. Der er ikke foretaget ændringer på din computer.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Følgende programmer bruger filer, som installationen af [ProductName] skal opdatere.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Synkroniser ikke filer, der er større end:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprog:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Plads på denne computer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Forløb</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Din administrator kræver totrinsbekræftelse. Slå den til for din konto først.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Vælg filer, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Fjern programmet</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Synkroniserer nu: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Start Driftwell, når jeg logger på</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Log på din server for at komme i gang.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Den delte mappe kunne ikke aktiveres til synkronisering.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Krypteret forbindelse</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Til:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] har ingen funktioner, der kan ændres.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Hurtig opsætning bruger de anbefalede indstillinger. Med brugerdefineret opsætning vælger du hver enkelt indstilling selv.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Når en fil er ændret begge steder:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Denne fil har ingen tidligere versioner.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Vælg...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Et grønt flueben betyder, at en fil er opdateret.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Vælg de mapper, der skal sikkerhedskopieres</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Udeladte filer:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Når du fjerner tilknytningen, stopper synkroniseringen med denne server. Dine filer forbliver på denne computer. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Vis i Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>En fejl stoppede installationsguiden til [ProductName].</translation>
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
        <translation>Synkroniseringsstatus med et blik</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Fjerner [ProductName] fra denne computer. Dine synkroniserede filer bliver, hvor de er.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Denne mappe kan ikke bruges til synkronisering. Vælg en anden.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 har delt mappen »%2« med dig.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Vælg en mappe, som ingen anden synkroniseringsopgave bruger.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Dine synkroniserede filer og mapper slettes ikke.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Opdater Driftwell for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Brug en krypteret forbindelse (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Skift mappe...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Vælg mapper</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyder ingen grænse.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Udskriv</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanceret</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Behold filer på serveren, når jeg sletter dem på denne computer</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Vælg en mappe på serveren.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På denne computer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 er downloadet.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Klik på Tilbage for at gennemse dit valg, eller på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Brug for hjælp til opsætningen? Åbn onlinevejledningen.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Luk disse programmer, og klik på Prøv igen, eller klik på Ignorer for at fortsætte alligevel.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jeg accepterer &amp;ikke betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell har registreret ændringer i dine mapper og synkroniserer dem.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Ingen mappe valgt.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Vælg endnu et mappepar, der skal holdes synkroniseret.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Angiv serverens værtsnavn, IP-adresse eller relæ-id.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Vælg den handling, du vil udføre på [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Brugernavnet er ikke gyldigt på denne server.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Relæ-id'et er ugyldigt. Kontrollér id'et, og prøv igen.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Noget gik galt. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Din Driftwell-mappe</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Send til %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Du skal acceptere betingelserne i denne aftale for at installere [ProductName].</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Vil du virkelig fjerne denne computers tilknytning til serveren?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Arbejd fra menulinjen</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Derfra kan du sætte synkroniseringen på pause eller åbne dine indstillinger.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Filer kan ikke deles via en relæforbindelse.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ændringer på netværksdrev registreres muligvis med forsinkelse.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 af %2 filer behandlet</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Registrerer forbindelsestypen...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>De mapper, du vælger, kopieres til serveren. Hvis du sletter en fil på denne computer, slettes dens sikkerhedskopi ikke.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversigt</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Denne fil er låst af et andet program.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Ændr, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>På standby</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opret forbindelse igen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Velkommen til vedligeholdelsesguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Vil du virkelig annullere installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Denne computer er allerede tilknyttet denne server.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Kopiér et delingslink</translation>
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
        <translation>Brugernavnet eller adgangskoden er forkert. Angiv dem igen.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Vil du fjerne denne delte mappe fra listen?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Dine filer bliver på din egen server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Den delte mappe kunne ikke fjernes fra listen.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privat, hurtig og altid opdateret</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Stop synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Senest ændret</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Forbindelsen til serveren er ustabil. Driftwell bliver ved med at forsøge at genoprette forbindelsen.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerer [ProductName] på din computer.\nKlik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synkroniseringsaktivitet</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 har delt en mappe med dig</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dage siden</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Bekræftelseskoden er forkert eller udløbet.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Brugernavn:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Delt mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Brugerdefineret periode</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Denne mappe er skrivebeskyttet. Ændringer på denne computer uploades ikke.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Seneste upload: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Du kan ændre forbindelsesindstillingerne senere.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filtypenavn</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Velkommen til Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Flet filer, når en mappe tilknyttes</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Sikkerhedskopieringen kunne ikke fuldføres. Kontrollér destinationsmappen, og prøv igen.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Fra:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Filer med disse filtypenavne synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Angiv adressen på din server og dine kontooplysninger.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Denne mappe overlapper en mappe, der allerede synkroniseres.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Annuller installationen</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Version understøttes ikke</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Der er ikke nok kvote tilbage på serveren til denne mappe.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten skal være et tal fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Dobbeltklik for at redigere filtypenavnet</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Installationen af [ProductName] mislykkedes</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Guiden er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Brug altid filen fra serveren</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerer din adgangskode...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Her kan du ændre, hvilke funktioner i [ProductName] der er installeret.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Test forbindelse</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Mappelisten kunne ikke indlæses på grund af en netværksfejl.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke forbundet</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mapper igen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Dobbeltklik på ikonet for at åbne Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Opret en Driftwell-mappe i min hjemmemappe</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Åbn Driftwell-mappen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Start [ProductName] nu</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Prøv at synkronisere igen</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Denne version af [ProductName] er allerede installeret.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen blev oprettet.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren kræver en adgangskode</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ændr de installerede funktioner</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Hvis du fortsætter, skal du muligvis genstarte computeren bagefter.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Vælg mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Søg efter servere på dette netværk</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Filer i denne mappe flettes med filerne på serveren. Intet slettes.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Har du ændret en fil ved en fejl? Gendan en tidligere version fra serveren.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell starter...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Portnummeret skal være mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Monteringspunkt ikke tilgængeligt</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Du er klar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Dine ændringer er ikke gemt. Vil du gemme dem nu?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkroniser</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell holder filerne på denne computer og på din server synkroniseret.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Vil du flette filerne i denne mappe med filerne på serveren?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Vil du virkelig fjerne denne synkroniseringsopgave? Filer, der allerede er synkroniseret, bliver på denne computer.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Filtyper, der ikke skal synkroniseres</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synkroniseringsmappe på denne computer</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Filtypenavne starter med et punktum, f.eks. .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Guiden er klar til at fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Dine ændringer er gemt.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Klik på Driftwell-ikonet i menulinjen for at se, hvad der synkroniseres.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Filnavne, der ikke skal synkroniseres:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurer proxy manuelt</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Relætjeneste deaktiveret</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Forbindelsen er ustabil. Driftwell bliver ved med at prøve.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Klik på Fjern for at fjerne [ProductName] fra denne computer.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkroniser denne mappe igen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] er installeret</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst af et andet program</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Vælg en mappe på serveren og en mappe på denne computer, der skal holdes synkroniseret.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Kør installationsprogrammet igen senere for at prøve igen. Klik på Udfør for at lukke guiden.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Opret forbindelse til din server</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Du kan højst synkronisere %1 delte mapper.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Næste &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Vis et ikon på filer, der ikke synkroniseres</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Vent, mens guiden installerer [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Afslut Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Der er ikke nok ledig plads på denne computer.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Intet blev ændret.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Der kan ikke oprettes et delingslink til dette element.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Angiv brugernavnet til proxyserveren.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Seneste 30 dage</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Skift...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Med vedligeholdelsesguiden kan du reparere eller fjerne [ProductName] på denne computer.\nKlik på Næste for at fortsætte eller på Annuller for at afslutte.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Behold begge filer, og omdøb den ældre</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jeg &amp;accepterer betingelserne i licensaftalen</translation>
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
        <translation>Tidligere versioner</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 kører allerede.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Klik på Installer for at begynde. Klik på Tilbage for at gennemse eller ændre dine indstillinger.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Filer, der er større end %1 MB, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Installationen af [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blå pile betyder, at en fil synkroniseres.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Tilknyt endnu en server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Anvender indstillingerne...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Angiv et brugernavn.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Din Driftwell-mappe er nu synkroniseret med serveren.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsnotifikationer</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overførselskø</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Vælg en opsætningstype</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell kunne ikke starte. Genstart computeren, og prøv igen.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Reparerer manglende eller beskadigede filer, genveje og poster i registreringsdatabasen for [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 til %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer opdatering</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] holder de mapper, du vælger, synkroniseret med din server.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] blev installeret korrekt.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har ikke tilladelse til at få adgang til denne delte mappe.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 mere</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Synkroniseringstilstand:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Denne mappe tilhører en anden server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Denne fil kan ikke downloades lige nu.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Mønstre uden jokertegn skal svare til hele filnavnet.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Udeladte filnavne</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>En nyere version af [ProductName] er allerede installeret.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Din lagerkvote på serveren er opbrugt. Frigør plads, eller bed om en større kvote.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Luk programmerne automatisk, og genstart dem bagefter</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Den lokale synkroniseringsmappe kan ikke findes. Den er muligvis flyttet eller slettet.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Guiden kopierer filer og opdaterer dit system.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Behold begge filer, og tilføj computernavnet til kopien fra denne computer</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Der er ikke nok ledig plads på denne computer. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Opdaterede filer</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Din lagerkvote på serveren er opbrugt.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Ingen mapper kan synkroniseres.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Der blev fundet en konflikt. Begge versioner blev bevaret.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Det nye sprog bruges, når Driftwell er genstartet.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Mappen er allerede i brug</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Opdaterer Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensaftale</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>På serveren</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 er et monteringspunkt og kan ikke bruges som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Nogle filer, der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Der er ingen hændelser at vise.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Ændringer i denne mappe på denne computer uploades ikke.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Du har kun læseadgang til denne delte mappe.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Brug et ensfarvet ikon i menulinjen</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtig opsætning</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Serverens certifikat er ændret. Vil du have tillid til det nye certifikat?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er fuld</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Angiv bekræftelseskoden fra din godkendelsesapp.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Du har ikke adgang til denne mappe.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Brug * for vilkårlige tegn, f.eks. ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan tage et par minutter.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Behold den senest ændrede fil</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Denne mappe synkroniseres allerede med en anden delt mappe.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synkroniser med din egen server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Søg på dette netværk</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Dine filer på alle de computere, du bruger.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Mappen på serveren er ikke tilgængelig.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Opsætningen er fuldført. Driftwell synkroniserer nu dine filer.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Kør installationsprogrammet igen for at installere [ProductName] senere.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>En mappe kan kun høre til én synkroniseringsopgave.</translation>
    </message>
</context>
</TS>
