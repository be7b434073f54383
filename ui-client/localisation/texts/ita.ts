<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>Il certificato del server è cambiato dall'ultima connessione.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Impossibile creare l'attività di sincronizzazione. Controlla la connessione al server e riprova.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra il tutorial</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>I file presenti in entrambe le posizioni vengono mantenuti e la copia meno recente viene rinominata.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Impossibile verificare il certificato di sicurezza del server.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Interrompere la sincronizzazione di questa cartella condivisa? I suoi file restano sul server.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Account:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sospeso</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Non chiudere i programmi (potrebbe essere necessario riavviare)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell è pronto.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>La quota della cartella condivisa è esaurita.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Il download è stato interrotto.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Installa [ProductName] su questo computer.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Tramite il servizio di inoltro</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell è configurato e ha avviato la sincronizzazione.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell non è riuscito a raggiungere il servizio di inoltro a causa di un errore di sistema. Riprova più tardi.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Impossibile stabilire una connessione sicura con il server.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Scegli quali cartelle condivise del server sincronizzare con questo computer.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Installazione di [ProductName] in corso</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Altri suggerimenti</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Aggiungi un'attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Aggiornamento di Driftwell in corso. Attendi.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Apri Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Impossibile scaricare %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Il computer non è stato modificato.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostra le icone dello stato di sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Scegli la cartella da sincronizzare.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>I file nelle cartelle deselezionate vengono rimossi da questo computer, ma restano sul server.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>La cartella di sincronizzazione si trova su un volume non montato. Connetti il volume per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Benvenuto in Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>L'aggiornamento non è riuscito. Resta in uso la versione precedente.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione in corso...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 è stato aggiornato</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Inizializzazione di Driftwell in corso...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>La procedura guidata è stata interrotta prima del termine.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>Il server ha risposto in un modo che Driftwell non riconosce. Aggiorna il server e il client all'ultima versione.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>La direzione di sincronizzazione di questa cartella è diversa da quella impostata sul server.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Elaborazione di %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Configurazione personalizzata</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>Sul server è in esecuzione una versione precedente che Driftwell non supporta. Aggiorna il server.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>La direzione di sincronizzazione è diversa dall'impostazione del server.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Indietro</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>Il server non accetta connessioni da questo indirizzo IP. Chiedi l'accesso all'amministratore.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizzazione di %1 file</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>Il disco del server è pieno.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>Il disco di questo computer è pieno. La sincronizzazione è sospesa.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Interrompi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>Il disco di questo computer è pieno.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>La connessione di rete si è interrotta. Driftwell si riconnetterà automaticamente.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Fai clic su Fine per chiudere la procedura guidata.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>È disponibile una nuova versione. Fai clic per installarla.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Hai solo l'accesso in lettura a questa cartella. I file verranno scaricati, ma mai caricati.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Consenti le connessioni tramite il servizio di inoltro</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>La cartella condivisa non esiste più sul server.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Questa versione di Driftwell è troppo vecchia per il server. Installa la versione più recente.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Fai clic su Annulla per uscire dalla procedura guidata senza installare.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Lo spazio libero su questo computer non è sufficiente per questa cartella.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>Il servizio di inoltro non ha trovato un percorso verso il tuo server. Verifica che il server sia online.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>La cartella condivisa non è montata sul server. Montala sul server e riprova.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>La cartella non è vuota. I suoi file verranno uniti a quelli sul server.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>I link di condivisione non sono disponibili tramite il servizio di inoltro.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>La tua quota sul server è esaurita.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Cartelle escluse...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>Il database di sincronizzazione locale è danneggiato. Scollega la cartella e collegala di nuovo per ricostruirlo.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Fai clic su Ripara per correggere l'installazione di [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Codice di verifica:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Impossibile elencare le versioni precedenti di questo file.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>La sincronizzazione di questa cartella è stata disattivata dall'amministratore.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Al termine della sincronizzazione:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell ha rinunciato dopo %1 tentativi. Controlla la rete e riprova.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Metti i file nella cartella Driftwell: compariranno sul tuo server e sugli altri tuoi computer.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Rim&amp;uovi</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Connessione instabile</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>La procedura guidata ha tutto ciò che serve per iniziare l'installazione.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Controlla le impostazioni, quindi fai clic su Fatto per avviare la sincronizzazione.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Per installare [ProductName] sono necessari i diritti di amministratore. Continuare comunque?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>La cartella %1 è già sincronizzata da un'altra attività.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Scegli l'operazione da eseguire.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>Il server a questo indirizzo è cambiato. Collega di nuovo l'attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>Il servizio di inoltro è disattivato sul server. Connettiti direttamente o attiva il servizio.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell non è connesso a nessun server.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Scegli tu le cartelle sul server e su questo computer.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Per cambiare ciò che viene sincronizzato, apri le impostazioni.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>Il certificato di sicurezza del server è cambiato. Conferma che consideri attendibile il nuovo certificato.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>La connessione al server è stata chiusa.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell sta indicizzando questa cartella.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Le cartelle di questo elenco non vengono mai sincronizzate.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Destinazione del backup:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Sincronizza la tua cartella home sul server con una cartella Driftwell su questo computer.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Impossibile caricare l'elenco delle cartelle a causa di un errore di sistema.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Modifica, ripara o rimuovi [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>I file in questa cartella vengono sincronizzati con il server.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>Impossibile installare [ProductName]. Il computer non è stato modificato.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>I seguenti programmi utilizzano file che l'installazione di [ProductName] deve aggiornare.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Ripara l'installazione</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Pronto per installare [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Non sincronizzare i file più grandi di:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Spazio su questo computer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>L'amministratore richiede la verifica in due passaggi. Attivala prima per il tuo account.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Scegli i file da sincronizzare</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Rimuovi il programma</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Sincronizzazione in corso: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Avvia Driftwell all'accesso</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Accedi al tuo server per iniziare.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Impossibile attivare la sincronizzazione della cartella condivisa.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Connessione crittografata</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] non ha funzionalità modificabili.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>La configurazione rapida usa le impostazioni consigliate. La configurazione personalizzata ti permette di sceglierle una per una.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Quando un file è stato modificato da entrambe le parti:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Questo file non ha versioni precedenti.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seleziona...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Un segno di spunta verde indica che un file è aggiornato.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Scegli le cartelle di cui eseguire il backup</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>File esclusi:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Lo scollegamento interrompe la sincronizzazione con questo server. I tuoi file restano su questo computer. Continuare?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostra nel Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Un errore ha interrotto l'installazione guidata di [ProductName].</translation>
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
        <translation>Lo stato della sincronizzazione a colpo d'occhio</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Rimuove [ProductName] da questo computer. I file sincronizzati restano dove sono.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Questa cartella non può essere usata per la sincronizzazione. Scegline un'altra.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 ha condiviso con te la cartella "%2".</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Scegli una cartella non utilizzata da altre attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>I file e le cartelle sincronizzati non vengono eliminati.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Aggiorna Driftwell per usare la sincronizzazione selettiva.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Usa una connessione crittografata (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Inizia ora</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Cambia cartella...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Scegli le cartelle</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa nessun limite.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostra lo stato della sincronizzazione</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Mantieni i file sul server quando li elimino da questo computer</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Scegli una cartella sul server.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Su questo computer</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 è stato scaricato.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Fai clic su Indietro per rivedere la scelta o su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Ti serve aiuto con la configurazione? Apri la guida online.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Chiudi questi programmi e fai clic su Riprova, oppure fai clic su Ignora per continuare comunque.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell ha rilevato modifiche nelle tue cartelle e le sta sincronizzando.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Nessuna cartella selezionata.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Scegli un'altra coppia di cartelle da mantenere sincronizzate.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Inserisci il nome host, l'indirizzo IP o l'ID di inoltro del server.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Benvenuto nell'installazione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Seleziona l'operazione da eseguire su [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>Il nome utente non è valido su questo server.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>L'ID di inoltro non è valido. Controlla l'ID e riprova.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Si è verificato un problema. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>La tua cartella Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Invia a %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Per installare [ProductName] devi accettare i termini di questo contratto.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Scollegare questo computer dal server?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Lavora dalla barra dei menu</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Da lì puoi sospendere la sincronizzazione o aprire le impostazioni.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Non è possibile condividere file tramite una connessione di inoltro.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Le modifiche sulle unità di rete potrebbero essere rilevate con un certo ritardo.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 di %2 file elaborati</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleziona una cartella</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un'altra cartella</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Rilevamento del tipo di connessione...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Le cartelle scelte vengono copiate sul server. Se elimini un file su questo computer, il suo backup non viene eliminato.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Panoramica del server</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Inserisci l'indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Questo file è bloccato da un altro programma.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Modifica, ripara o rimuovi l'installazione</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>In standby</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Benvenuto nella manutenzione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Annullare l'installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Questo computer è già collegato a questo server.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Copia un link di condivisione</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersione:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>Il nome utente o la password non sono corretti. Inseriscili di nuovo.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Rimuovere questa cartella condivisa dall'elenco?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>I tuoi file restano sul tuo server.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Impossibile rimuovere la cartella condivisa dall'elenco.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privato, veloce e sempre aggiornato</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Interrompi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Modificati di recente</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>La connessione al server è instabile. Driftwell continua a tentare di riconnettersi.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'installazione guidata installerà [ProductName] nel computer.\nFai clic su Avanti per continuare o su Annulla per uscire dall'installazione guidata.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Leggi attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Andamento della sincronizzazione</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Sfoglia le versioni precedenti</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 ha condiviso una cartella con te</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 giorni fa</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>Il codice di verifica non è corretto o è scaduto.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervallo personalizzato</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Questa cartella è di sola lettura. Le modifiche su questo computer non vengono caricate.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parametro non valido.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ultimo upload: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Potrai modificare le impostazioni di connessione in seguito.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Estensione file</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Benvenuto in Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Unisci i file quando colleghi una cartella</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Impossibile completare il backup. Controlla la cartella di destinazione e riprova.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Da:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>I file con queste estensioni non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Inserisci l'indirizzo del server e i dati del tuo account.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Questa cartella si sovrappone a una cartella già sincronizzata.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Annulla installazione</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versione non supportata</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>La quota rimanente sul server non è sufficiente per questa cartella.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome computer</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>La porta deve essere un numero compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Fai doppio clic per modificare l'estensione</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Installazione di [ProductName] non riuscita</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>La procedura guidata è pronta per riparare [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Usa sempre il file del server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Verifica della password in corso...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Consente di modificare le funzionalità di [ProductName] installate.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Prova connessione</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Impossibile caricare l'elenco delle cartelle a causa di un errore di rete.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Riprendi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Fai doppio clic sull'icona per aprire Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Crea una cartella Driftwell nella mia cartella home</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Apri la cartella Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Avvia [ProductName] ora</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Riprova a sincronizzare</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Questa versione di [ProductName] è già installata.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Il server proxy richiede una password</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifica le funzionalità installate</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Se continui, potrebbe essere necessario riavviare il computer al termine.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Scegli le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Cerca server in questa rete</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>I file in questa cartella verranno uniti a quelli sul server. Non viene eliminato nulla.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Hai modificato un file per errore? Ripristina una versione precedente dal server.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Avvio di Driftwell in corso...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>Il numero di porta deve essere compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Punto di montaggio non disponibile</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>È tutto pronto</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Le modifiche non sono state salvate. Salvarle ora?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizza</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell mantiene sincronizzati i file di questo computer e del tuo server.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Unire i file di questa cartella con quelli sul server?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Rimuovere questa attività di sincronizzazione? I file già sincronizzati restano su questo computer.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Tipi di file da non sincronizzare</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Cartella di sincronizzazione su questo computer</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Le estensioni iniziano con un punto, ad esempio .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>La procedura guidata è pronta per rimuovere [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Le modifiche sono state salvate.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Fai clic sull'icona di Driftwell nella barra dei menu per vedere cosa si sta sincronizzando.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nomi di file da non sincronizzare:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configura il proxy manualmente</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Servizio di inoltro disattivato</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>La connessione è instabile. Driftwell continua a tentare.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Fai clic su Rimuovi per rimuovere [ProductName] da questo computer.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Riprendi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] è stato installato</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Poco fa</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloccato da un altro programma</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Scegli una cartella sul server e una su questo computer da mantenere sincronizzate.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Per riprovare, esegui di nuovo il programma di installazione più tardi. Fai clic su Fine per chiudere la procedura guidata.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connettiti al tuo server</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Puoi sincronizzare al massimo %1 cartelle condivise.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Upload in corso...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Avanti &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostra un'icona sui file non sincronizzati</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Attendi mentre la procedura guidata installa [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Esci da Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Lo spazio libero su questo computer non è sufficiente.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data creazione</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossibile creare un link di condivisione per questo elemento.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Inserisci il nome utente per il server proxy.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Ultimi 30 giorni</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Cambia...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>La manutenzione guidata ti permette di riparare o rimuovere [ProductName] da questo computer.\nFai clic su Avanti per continuare o su Annulla per uscire.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Mantieni entrambi i file e rinomina quello meno recente</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;ccetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Versioni precedenti</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 è già in esecuzione.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Fai clic su Installa per iniziare. Per rivedere o modificare le impostazioni, fai clic su Indietro.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>I file più grandi di %1 MB non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}L'installazione di [ProductName] è stata interrotta</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Dettagli della connessione</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Le frecce blu indicano che un file è in fase di sincronizzazione.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Collega un altro server</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applicazione delle impostazioni in corso...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Inserisci un nome utente.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>La tua cartella Driftwell ora è sincronizzata con il server.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Coda di trasferimento</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Scegli un tipo di configurazione</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Impossibile avviare Driftwell. Riavvia il computer e riprova.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Ripara file, collegamenti e voci di registro di [ProductName] mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Dal %1 al %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installa aggiornamento</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] manterrà sincronizzate con il tuo server le cartelle che scegli.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] è stato installato correttamente.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Non hai l'autorizzazione per accedere a questa cartella condivisa.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Modalità di sincronizzazione:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Questa cartella appartiene a un altro server.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Al momento non è possibile scaricare questo file.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>I modelli senza caratteri jolly devono corrispondere all'intero nome del file.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomi di file esclusi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuto</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Una versione più recente di [ProductName] è già installata.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>La tua quota di spazio sul server è esaurita. Libera spazio o richiedi una quota maggiore.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Chiudi automaticamente i programmi e riavviali in seguito</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Impossibile trovare la cartella di sincronizzazione locale. Potrebbe essere stata spostata o eliminata.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>La procedura guidata sta copiando i file e aggiornando il sistema.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Mantieni entrambi i file e aggiungi il nome del computer alla copia proveniente da questo computer</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Lo spazio libero su questo computer non è sufficiente. Libera spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia download</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>La tua quota di spazio sul server è esaurita.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ore fa</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Nessuna cartella può essere sincronizzata.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>È stato rilevato un conflitto. Entrambe le versioni sono state mantenute.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Pronto per rimuovere [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>La nuova lingua verrà usata dopo il riavvio di Driftwell.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Cartella già in uso</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Aggiornamento di Driftwell in corso...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Sul server</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 è un punto di montaggio e non può essere usato come cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alcuni file da aggiornare sono in uso.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nessun evento da mostrare.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Le modifiche apportate a questa cartella su questo computer non vengono caricate.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Cronologia sincronizzazione</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Hai solo l'accesso in lettura a questa cartella condivisa.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Usa un'icona monocromatica nella barra dei menu</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>La cartella non è vuota</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>Il certificato del server è cambiato. Considerare attendibile il nuovo certificato?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco pieno</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Inserisci il codice di verifica della tua app di autenticazione.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Non hai accesso a questa cartella.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nuova attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Usa * per indicare qualsiasi sequenza di caratteri, ad esempio ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Controllo dei file in corso...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>L'operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Mantieni il file modificato più di recente</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>I&amp;nstalla</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Questa cartella è già sincronizzata con un'altra cartella condivisa.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Sincronizza con il tuo server</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Cerca in questa rete</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>I tuoi file, su ogni computer che usi.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>La cartella sul server non è disponibile.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>Configurazione completata. Driftwell sta sincronizzando i tuoi file.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto per riparare [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Per installare [ProductName] più tardi, esegui di nuovo il programma di installazione.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Una cartella può appartenere a una sola attività di sincronizzazione.</translation>
    </message>
</context>
</TS>
