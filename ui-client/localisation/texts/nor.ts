<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Serverens sertifikat er endret siden forrige tilkobling.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Synkroniseringsoppgaven kunne ikke opprettes. Kontroller tilkoblingen til serveren, og prøv igjen.</translation>
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
        <translation>Vis veiledningen</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Filer som finnes begge steder, beholdes, og den eldre kopien får nytt navn.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Siste 7 dager</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Serverens sikkerhetssertifikat kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Vil du slutte å synkronisere denne delte mappen? Filene blir værende på serveren.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>La programmene &amp;være åpne (en omstart kan være nødvendig)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell er klar.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>Kvoten for den delte mappen er brukt opp.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Nedlastingen ble stoppet.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Installer [ProductName] på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Via relétjenesten</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell er konfigurert og har begynt å synkronisere.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell kunne ikke nå relétjenesten på grunn av en systemfeil. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Kunne ikke opprette en sikker tilkobling til serveren.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Velg hvilke delte mapper på serveren som skal synkroniseres med denne datamaskinen.</translation>
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
        <translation>Legg til en synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell oppdateres. Vent litt.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Åpne Driftwell</translation>
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
        <translation>%1 kunne ikke lastes ned.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Ingen endringer er gjort på datamaskinen din.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passord:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Velg mappen som skal synkroniseres.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Filer i mapper du fjerner merket for, fjernes fra denne datamaskinen, men blir værende på serveren.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>Synkroniseringsmappen ligger på et volum som ikke er montert. Koble til volumet for å fortsette synkroniseringen.</translation>
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
        <translation>Oppdateringen mislyktes. Den forrige versjonen brukes fortsatt.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 ble oppdatert</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjon av [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell initialiseres...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>Veiviseren ble avbrutt før den var ferdig.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Endre</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autentisering mislyktes</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Serveren svarte på en måte som Driftwell ikke forstår. Oppdater serveren og klienten til nyeste versjon.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>Synkroniseringsretningen for denne mappen er forskjellig fra den som er angitt på serveren.</translation>
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
        <translation>Mappen %1 kunne ikke opprettes.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Tilpasset oppsett</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Serveren kjører en eldre versjon som Driftwell ikke støtter. Oppdater serveren.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>Synkroniseringsretningen er forskjellig fra innstillingen på serveren.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbake</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Serveren godtar ikke tilkoblinger fra denne IP-adressen. Be administratoren din om tilgang.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserer %1 filer</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Disken på serveren er full.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fullført</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Om %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Disken på denne datamaskinen er full. Synkroniseringen er satt på pause.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Slutt å synkronisere denne mappen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Disken på denne datamaskinen er full.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Nettverkstilkoblingen ble brutt. Driftwell kobler til på nytt automatisk.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Klikk Fullfør for å lukke veiviseren.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>En ny versjon er klar. Klikk for å installere den.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Du har bare lesetilgang til denne mappen. Filer lastes ned, men lastes aldri opp.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Tillat tilkoblinger via relétjenesten</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>Den delte mappen finnes ikke lenger på serveren.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Denne versjonen av Driftwell er for gammel for serveren. Installer nyeste versjon.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Klikk Avbryt for å avslutte veiviseren uten å installere.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen for denne mappen.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Relétjenesten fant ingen rute til serveren din. Kontroller at serveren er på nett.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>Den delte mappen er ikke montert på serveren. Monter den på serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>Mappen er ikke tom. Filene i den slås sammen med filene på serveren.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Delingslenker er ikke tilgjengelige via relétjenesten.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Kvoten din på serveren er brukt opp.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøpt</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Utelatte mapper...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Den lokale synkroniseringsdatabasen er skadet. Fjern tilknytningen for mappen, og knytt den til på nytt for å bygge opp databasen igjen.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Klikk Reparer for å reparere installasjonen av [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Bekreftelseskode:</translation>
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
        <translation>De tidligere versjonene av denne filen kan ikke vises.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Administratoren din har slått av synkronisering av denne mappen.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Når synkroniseringen er ferdig:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell ga opp etter %1 forsøk. Kontroller nettverket, og prøv igjen.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Legg filer i Driftwell-mappen, så vises de på serveren din og de andre datamaskinene dine.</translation>
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
        <translation>Ustabil tilkobling</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>Veiviseren har alt den trenger for å starte installasjonen.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Kontroller innstillingene dine, og klikk deretter Ferdig for å starte synkroniseringen.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Du trenger administratorrettigheter for å installere [ProductName]. Vil du fortsette likevel?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>Mappen %1 synkroniseres allerede av en annen synkroniseringsoppgave.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Velg hva du vil gjøre.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Serveren på denne adressen er endret. Knytt synkroniseringsoppgaven til på nytt.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Relétjenesten er slått av på serveren. Koble til direkte, eller slå på tjenesten.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell er ikke koblet til en server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Velg selv mappene på serveren og på denne datamaskinen.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Åpne innstillingene for å endre hva som synkroniseres.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Serverens sikkerhetssertifikat er endret. Bekreft at du stoler på det nye sertifikatet.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Tilkoblingen til serveren ble lukket.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell indekserer denne mappen.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Oppdatering tilgjengelig</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Mapper i denne listen synkroniseres aldri.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Sikkerhetskopier til:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Synkroniser hjemmemappen din på serveren med en Driftwell-mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Mappelisten kunne ikke lastes inn på grunn av en systemfeil.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Endre, reparer eller fjern [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Filer i denne mappen synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>[ProductName] kunne ikke installeres. Ingen endringer er gjort på datamaskinen din.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet for [ProductName] må oppdatere.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installasjonen</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Klar til å installere [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Ikke synkroniser filer som er større enn:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Plass på denne datamaskinen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Administratoren din krever totrinnsbekreftelse. Slå den på for kontoen din først.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Velg filer som skal synkroniseres</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Fjern programmet</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Synkroniserer nå: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Start Driftwell når jeg logger på</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Logg på serveren din for å komme i gang.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Den delte mappen kunne ikke aktiveres for synkronisering.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Kryptert tilkobling</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Til:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] har ingen funksjoner som kan endres.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>Hurtigoppsett bruker de anbefalte innstillingene. Med tilpasset oppsett velger du hver innstilling selv.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Når en fil er endret begge steder:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Denne filen har ingen tidligere versjoner.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igjen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Velg...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>En grønn hake betyr at en fil er oppdatert.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Velg mappene som skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Utelatte filer:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Når du fjerner tilknytningen, stopper synkroniseringen med denne serveren. Filene dine blir værende på denne datamaskinen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Vis i Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>En feil stoppet installasjonsveiviseren for [ProductName].</translation>
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
        <translation>Synkroniseringsstatus med et blikk</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Fjerner [ProductName] fra denne datamaskinen. De synkroniserte filene dine blir der de er.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Denne mappen kan ikke brukes til synkronisering. Velg en annen.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 har delt mappen «%2» med deg.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Velg en mappe som ingen annen synkroniseringsoppgave bruker.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>De synkroniserte filene og mappene dine slettes ikke.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Oppdater Driftwell for å bruke selektiv synkronisering.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Bruk kryptert tilkobling (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Endre mappe...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Velg mapper</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 betyr ingen grense.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Behold filer på serveren når jeg sletter dem på denne datamaskinen</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Velg en mappe på serveren.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På denne datamaskinen</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 er lastet ned.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Klikk Tilbake for å se gjennom valget ditt, eller Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Trenger du hjelp med oppsettet? Åpne nettveiledningen.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Lukk disse programmene og klikk Prøv igjen, eller klikk Ignorer for å fortsette likevel.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jeg godtar &amp;ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell har oppdaget endringer i mappene dine og synkroniserer dem.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Ingen mappe er valgt.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Velg enda et mappepar som skal holdes synkronisert.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Skriv inn vertsnavnet, IP-adressen eller relé-ID-en til serveren.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Velkommen til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Velg handlingen du vil utføre for [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Brukernavnet er ikke gyldig på denne serveren.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>Relé-ID-en er ugyldig. Kontroller ID-en, og prøv igjen.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Noe gikk galt. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Driftwell-mappen din</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Send til %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>For å installere [ProductName] må du godta vilkårene i denne avtalen.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Vil du virkelig fjerne tilknytningen mellom denne datamaskinen og serveren?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Jobb fra menylinjen</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Derfra kan du sette synkroniseringen på pause eller åpne innstillingene.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Filer kan ikke deles via en relétilkobling.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Endringer på nettverksstasjoner kan bli oppdaget med forsinkelse.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 av %2 filer behandlet</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Finner tilkoblingstypen...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Mappene du velger, kopieres til serveren. Hvis du sletter en fil på denne datamaskinen, slettes ikke sikkerhetskopien av den.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversikt</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Skriv inn adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Denne filen er låst av et annet program.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Endre, reparer eller fjern installasjonen</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Står klar</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Velkommen til vedlikeholdsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Vil du virkelig avbryte installasjonen av [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Denne datamaskinen er allerede knyttet til denne serveren.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Kopier en delingslenke</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersjon:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Brukernavnet eller passordet er feil. Skriv dem inn på nytt.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Vil du fjerne denne delte mappen fra listen?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Filene dine blir værende på din egen server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Den delte mappen kunne ikke fjernes fra listen.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privat, rask og alltid oppdatert</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Slutt å synkronisere disse mappene</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Nylig endret</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>Tilkoblingen til serveren er ustabil. Driftwell fortsetter å prøve å koble til på nytt.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installasjonsveiviseren installerer [ProductName] på datamaskinen din.\nKlikk Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Synkroniseringsaktivitet</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 har delt en mappe med deg</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dager siden</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Bekreftelseskoden er feil eller har utløpt.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Brukernavn:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Fant ikke den delte mappen</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egendefinert periode</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Denne mappen er skrivebeskyttet. Endringer på denne datamaskinen lastes ikke opp.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
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
        <translation>Siste opplasting: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Du kan endre tilkoblingsinnstillingene senere.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filendelse</translation>
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
        <translation>Slå sammen filer når en mappe knyttes til</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Sikkerhetskopieringen kunne ikke fullføres. Kontroller målmappen, og prøv igjen.</translation>
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
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Filer med disse filendelsene synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Skriv inn adressen til serveren din og kontoopplysningene dine.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Denne mappen overlapper en mappe som allerede synkroniseres.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Avbryt installasjonen</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Tilgang nektet</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versjonen støttes ikke</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Det er ikke nok kvote igjen på serveren for denne mappen.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Porten må være et tall fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Dobbeltklikk for å redigere filendelsen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Installasjonen av [ProductName] mislyktes</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>Veiviseren er klar til å reparere [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Bruk alltid filen fra serveren</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerer passordet...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Lar deg endre hvilke funksjoner i [ProductName] som er installert.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Test tilkoblingen</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Mappelisten kunne ikke lastes inn på grunn av en nettverksfeil.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke tilkoblet</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mappene igjen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Dobbeltklikk på ikonet for å åpne Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Opprett en Driftwell-mappe i hjemmemappen min</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Åpne Driftwell-mappen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Start [ProductName] nå</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Prøv å synkronisere igjen</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Denne versjonen av [ProductName] er allerede installert.</translation>
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
        <translation>Tilkoblingen er opprettet.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren krever passord</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Endre de installerte funksjonene</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Hvis du fortsetter, må du kanskje starte datamaskinen på nytt etterpå.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Velg mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Søk etter servere på dette nettverket</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Filer i denne mappen slås sammen med filene på serveren. Ingenting slettes.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Endret en fil ved en feil? Gjenopprett en tidligere versjon fra serveren.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell starter...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Endre synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Portnummeret må være mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Monteringspunkt utilgjengelig</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alt er klart</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Endringene dine er ikke lagret. Vil du lagre dem nå?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkroniser</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell holder filene på denne datamaskinen og på serveren din synkronisert.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Vil du slå sammen filene i denne mappen med filene på serveren?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Vil du virkelig fjerne denne synkroniseringsoppgaven? Filer som allerede er synkronisert, blir værende på denne datamaskinen.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fullfør</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Filtyper som ikke skal synkroniseres</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Synkroniseringsmappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Filendelser starter med punktum, for eksempel .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>Veiviseren er klar til å fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Endringene dine er lagret.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Klikk på Driftwell-ikonet i menylinjen for å se hva som synkroniseres.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Filnavn som ikke skal synkroniseres:</translation>
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
        <translation>Relétjenesten er deaktivert</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>Tilkoblingen er ustabil. Driftwell fortsetter å prøve.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Klikk Fjern for å fjerne [ProductName] fra denne datamaskinen.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkroniser denne mappen igjen</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] er installert</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Skjønner</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst av et annet program</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Velg en mappe på serveren og en mappe på denne datamaskinen som skal holdes synkronisert.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Kjør installasjonsprogrammet igjen senere for å prøve på nytt. Klikk Fullfør for å lukke veiviseren.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Koble til serveren din</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Du kan synkronisere maksimalt %1 delte mapper.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Neste &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Vis et ikon på filer som ikke synkroniseres</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Vent mens veiviseren installerer [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Avslutt Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Ingenting ble endret.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveis synkronisering</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Det kan ikke opprettes en delingslenke for dette elementet.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Skriv inn brukernavnet for proxyserveren.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Siste 30 dager</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Endre...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>Med vedlikeholdsveiviseren kan du reparere eller fjerne [ProductName] på denne datamaskinen.\nKlikk Neste for å fortsette eller Avbryt for å avslutte.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Behold begge filene, og gi den eldre nytt navn</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Tidligere versjoner</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 kjører allerede.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Klikk Installer for å begynne. Klikk Tilbake for å se gjennom eller endre innstillingene.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Filer som er større enn %1 MB, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Installasjonen av [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Tilkoblingsdetaljer</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Blå piler betyr at en fil synkroniseres.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Knytt til enda en server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tar i bruk innstillingene...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Skriv inn et brukernavn.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Driftwell-mappen din er nå synkronisert med serveren.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overføringskø</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Velg oppsettstype</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell kunne ikke starte. Start datamaskinen på nytt, og prøv igjen.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Reparerer manglende eller skadede filer, snarveier og registeroppføringer for [ProductName].</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 til %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer oppdatering</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] holder mappene du velger, synkronisert med serveren din.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] ble installert uten problemer.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Du har ikke tilgang til denne delte mappen.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 til</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Synkroniseringsmodus:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Denne mappen hører til en annen server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Denne filen kan ikke lastes ned akkurat nå.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Mønstre uten jokertegn må samsvare med hele filnavnet.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Utelatte filnavn</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>En nyere versjon av [ProductName] er allerede installert.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Lagringskvoten din på serveren er brukt opp. Frigjør plass, eller be om en større kvote.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Lukk programmene automatisk og start dem på nytt etterpå</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Finner ikke den lokale synkroniseringsmappen. Den kan ha blitt flyttet eller slettet.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>Veiviseren kopierer filer og oppdaterer systemet ditt.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Behold begge filene, og legg til datamaskinnavnet på kopien fra denne datamaskinen</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Oppdaterte filer</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingslogg</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Lagringskvoten din på serveren er brukt opp.</translation>
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
        <translation>Det ble funnet en konflikt. Begge versjonene er beholdt.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>Det nye språket tas i bruk når Driftwell har startet på nytt.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Mappen er allerede i bruk</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Oppdaterer Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisensavtale</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>På serveren</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 er et monteringspunkt og kan ikke brukes som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Noen filer som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Ingen hendelser å vise.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Endringer i denne mappen på denne datamaskinen lastes ikke opp.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringslogg</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Du har bare lesetilgang til denne delte mappen.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Bruk et ensfarget ikon i menylinjen</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Serverens sertifikat er endret. Vil du stole på det nye sertifikatet?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er full</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Skriv inn bekreftelseskoden fra autentiseringsappen din.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Du har ikke tilgang til denne mappen.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Bruk * for vilkårlige tegn, for eksempel ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan ta noen minutter.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Behold filen som ble endret sist</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Denne mappen synkroniseres allerede med en annen delt mappe.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Synkroniser med din egen server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Søk i dette nettverket</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Filene dine, på alle datamaskiner du bruker.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>Mappen på serveren er ikke tilgjengelig.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Oppsettet er fullført. Driftwell synkroniserer nå filene dine.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Kjør installasjonsprogrammet på nytt for å installere [ProductName] senere.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>En mappe kan bare høre til én synkroniseringsoppgave.</translation>
    </message>
</context>
</TS>
