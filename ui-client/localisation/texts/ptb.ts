<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>O certificado do servidor mudou desde a última conexão.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>Não foi possível criar a tarefa de sincronização. Verifique a conexão com o servidor e tente novamente.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
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
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Os arquivos que existem nos dois locais são mantidos, e a cópia mais antiga é renomeada.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado de segurança do servidor.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janeiro</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>Parar de sincronizar esta pasta compartilhada? Os arquivos dela continuam no servidor.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Conta:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;Não fechar os programas (pode ser necessário reiniciar)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>O Driftwell está pronto.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>A cota da pasta compartilhada se esgotou.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>O download foi interrompido.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Instale o [ProductName] neste computador.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>Pelo serviço de retransmissão</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>O Driftwell está configurado e começou a sincronizar.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>O Driftwell não conseguiu acessar o serviço de retransmissão devido a um erro do sistema. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Escolha quais pastas compartilhadas do servidor serão sincronizadas com este computador.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Instalando o [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Mais dicas</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicionar uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>O Driftwell está sendo atualizado. Aguarde.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Abrir o Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>Não foi possível baixar %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>Nenhuma alteração foi feita no seu computador.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de status da sincronização em arquivos e pastas</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Escolha a pasta a ser sincronizada.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Os arquivos das pastas desmarcadas são removidos deste computador, mas continuam no servidor.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>A pasta de sincronização está em um volume não montado. Conecte o volume para continuar sincronizando.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>Bem-vindo ao Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>A atualização falhou. A versão anterior continua em uso.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 foi atualizado</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>O Driftwell está sendo inicializado...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>O assistente foi interrompido antes de terminar.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>A&amp;lterar</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>O servidor respondeu de uma forma que o Driftwell não entende. Atualize o servidor e o cliente para a versão mais recente.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>A direção de sincronização desta pasta é diferente da definida no servidor.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Processando %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>The folder %1 could not be created.</source>
        <translation>Não foi possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Configuração personalizada</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>O servidor executa uma versão antiga que o Driftwell não suporta. Atualize o servidor.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>A direção de sincronização é diferente da definida no servidor.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Voltar</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>O servidor não aceita conexões deste endereço IP. Peça acesso ao seu administrador.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizando %1 arquivos</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>O disco deste computador está cheio. A sincronização está pausada.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Parar de sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>O disco deste computador está cheio.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>A conexão de rede foi perdida. O Driftwell se reconectará automaticamente.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Clique em Concluir para fechar o assistente.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Uma nova versão está pronta. Clique para instalá-la.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Você só tem acesso de leitura a esta pasta. Os arquivos serão baixados, mas nunca enviados.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>quinta-feira</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Permitir conexões pelo serviço de retransmissão</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>A pasta compartilhada não existe mais no servidor.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Esta versão do Driftwell é antiga demais para o servidor. Instale a versão mais recente.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Clique em Cancelar para sair do assistente sem instalar.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>Não há espaço livre suficiente neste computador para esta pasta.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>O serviço de retransmissão não encontrou uma rota até o seu servidor. Verifique se o servidor está on-line.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>A pasta compartilhada não está montada no servidor. Monte-a no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>A pasta não está vazia. Os arquivos dela serão mesclados com os arquivos do servidor.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Links de compartilhamento não estão disponíveis pelo serviço de retransmissão.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Sua cota no servidor se esgotou.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renomeado</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Pastas ignoradas...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>O banco de dados de sincronização local está danificado. Desvincule a pasta e vincule-a novamente para recriá-lo.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Clique em Reparar para corrigir a instalação do [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Código de verificação:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>Não é possível listar as versões anteriores deste arquivo.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>A sincronização desta pasta foi desativada pelo seu administrador.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Quando a sincronização terminar:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>O Driftwell desistiu após %1 tentativas. Verifique sua rede e tente novamente.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Coloque arquivos na pasta Driftwell e eles aparecerão no seu servidor e nos seus outros computadores.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Conexão instável</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>O assistente tem tudo o que precisa para iniciar a instalação.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Verifique suas configurações e clique em Concluído para começar a sincronizar.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Você precisa de direitos de administrador para instalar o [ProductName]. Continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finalizado</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>The folder %1 is already synced by another task.</source>
        <translation>A pasta %1 já é sincronizada por outra tarefa.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Escolha o que deseja fazer.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>O servidor neste endereço mudou. Vincule a tarefa de sincronização novamente.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>O serviço de retransmissão está desativado no servidor. Conecte-se diretamente ou ative o serviço.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>O Driftwell não está conectado a um servidor.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexão</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Escolha você mesmo as pastas no servidor e neste computador.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Para alterar o que é sincronizado, abra as configurações.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>O certificado de segurança do servidor mudou. Confirme que você confia no novo certificado.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>A conexão com o servidor foi encerrada.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>March</source>
        <translation>março</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>O Driftwell está indexando esta pasta.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>As pastas desta lista nunca são sincronizadas.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Fazer backup em:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Sincronize sua pasta pessoal no servidor com uma pasta Driftwell neste computador.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>Não foi possível carregar a lista de pastas devido a um erro do sistema.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Altere, repare ou remova o [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Os arquivos desta pasta são sincronizados com o servidor.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>Não foi possível instalar o [ProductName]. Nenhuma alteração foi feita no seu computador.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo de arquivo</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Os programas a seguir usam arquivos que a instalação do [ProductName] precisa atualizar.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar a instalação</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>Não sincronizar arquivos maiores que:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Espaço neste computador</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Seu administrador exige a verificação em duas etapas. Ative-a primeiro na sua conta.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Escolher arquivos para sincronizar</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Remover o programa</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Sincronizando agora: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Iniciar o Driftwell quando eu fizer login</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Faça login no seu servidor para começar.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>Não foi possível ativar a sincronização da pasta compartilhada.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Conexão criptografada</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Até:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>O [ProductName] não tem recursos que possam ser alterados.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Próximas %1 páginas</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>A configuração rápida usa as opções recomendadas. A configuração personalizada permite que você escolha cada uma delas.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Quando um arquivo foi alterado nos dois lados:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Este arquivo não tem versões anteriores.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Selecionar...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Uma marca de seleção verde indica que o arquivo está atualizado.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Escolha as pastas para fazer backup</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Arquivos ignorados:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Desvincular interrompe a sincronização com este servidor. Seus arquivos continuam neste computador. Continuar?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar no Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Um erro interrompeu o Assistente de Instalação do [ProductName].</translation>
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
        <translation>O status da sincronização de relance</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Remove o [ProductName] deste computador. Seus arquivos sincronizados permanecem onde estão.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Esta pasta não pode ser usada para sincronização. Escolha outra.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 compartilhou a pasta "%2" com você.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Escolha uma pasta que não seja usada por nenhuma outra tarefa de sincronização.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Seus arquivos e pastas sincronizados não são excluídos.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Atualize o Driftwell para usar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Usar uma conexão criptografada (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Alterar pasta...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Escolher pastas</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa sem limite.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar status da sincronização</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Manter os arquivos no servidor quando eu os excluir deste computador</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Escolha uma pasta no servidor.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Neste computador</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 foi baixado.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Clique em Voltar para revisar sua escolha ou em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembro</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>Precisa de ajuda com a configuração? Abra o guia on-line.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Feche esses programas e clique em Tentar novamente, ou clique em Ignorar para continuar mesmo assim.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Arquivos em uso</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>O Driftwell detectou alterações nas suas pastas e está sincronizando-as.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>Nenhuma pasta selecionada.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Escolha outro par de pastas para manter sincronizadas.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Digite o nome do host, o endereço IP ou o ID de retransmissão do servidor.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Bem-vindo ao Assistente de Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Selecione a operação que deseja realizar no [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>O nome de usuário não é válido neste servidor.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>O ID de retransmissão não é válido. Verifique o ID e tente novamente.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Algo deu errado. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Sua pasta Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar para %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Para instalar o [ProductName], você precisa aceitar os termos deste contrato.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>Tem certeza de que deseja desvincular este computador do servidor?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Trabalhe a partir da barra de menus</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Ali você pode pausar a sincronização ou abrir as configurações.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>Não é possível compartilhar arquivos por uma conexão de retransmissão.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Alterações em unidades de rede podem ser detectadas com atraso.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 de %2 arquivos processados</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecionar uma pasta</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detectando o tipo de conexão...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>As pastas escolhidas são copiadas para o servidor. Excluir um arquivo neste computador não exclui o backup dele.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Visão geral do servidor</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Digite o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Este arquivo está bloqueado por outro programa.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Bem-vindo ao Assistente de Manutenção do [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Este computador já está vinculado a este servidor.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Copiar um link de compartilhamento</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersão:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>O nome de usuário ou a senha estão incorretos. Digite-os novamente.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>Remover esta pasta compartilhada da lista?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Seus arquivos ficam no seu próprio servidor.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>Não foi possível remover a pasta compartilhada da lista.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privado, rápido e sempre atualizado</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Parar de sincronizar estas pastas</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Alterados recentemente</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>A conexão com o servidor está instável. O Driftwell continua tentando se reconectar.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Instalação instalará o [ProductName] no seu computador.\nClique em Avançar para continuar ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Leia com atenção o contrato de licença a seguir.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Atividade de sincronização</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Navegar pelas versões anteriores</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 compartilhou uma pasta com você</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>O código de verificação está incorreto ou expirou.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta compartilhada não encontrada</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Esta pasta é somente leitura. As alterações feitas neste computador não são enviadas.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junho</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Último envio: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Você pode alterar as configurações de conexão mais tarde.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensão de arquivo</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Bem-vindo ao Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>fevereiro</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Mesclar arquivos ao vincular uma pasta</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>Não foi possível concluir o backup. Verifique a pasta de destino e tente novamente.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Arquivos com estas extensões não são sincronizados.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Digite o endereço do seu servidor e os dados da sua conta.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Esta pasta se sobrepõe a uma pasta que já está sendo sincronizada.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Cancelar instalação</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versão não suportada</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>Não há cota suficiente no servidor para esta pasta.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>A porta deve ser um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Clique duas vezes para editar a extensão</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}Falha na instalação do [ProductName]</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>O assistente está pronto para reparar o [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Baixado</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Sempre usar o arquivo do servidor</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Verificando sua senha...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Permite alterar quais recursos do [ProductName] são instalados.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testar conexão</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>Não foi possível carregar a lista de pastas devido a um erro de rede.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Retomar a sincronização destas pastas</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Clique duas vezes no ícone para abrir o Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Criar uma pasta Driftwell na minha pasta pessoal</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Abrir a pasta Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Iniciar o [ProductName] agora</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Tentar sincronizar novamente</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Esta versão do [ProductName] já está instalada.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conectado com sucesso.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>O servidor proxy exige uma senha</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar os recursos instalados</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Se você continuar, talvez precise reiniciar o computador depois.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Escolher pastas para sincronizar</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Procurar servidores nesta rede</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Os arquivos desta pasta serão mesclados com os arquivos do servidor. Nada é excluído.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>Alterou um arquivo por engano? Restaure uma versão anterior a partir do servidor.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>O Driftwell está iniciando...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar pasta de sincronização</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>O número da porta deve estar entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Ponto de montagem indisponível</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Suas alterações não foram salvas. Salvar agora?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>O Driftwell mantém os arquivos deste computador e do seu servidor sincronizados.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>Mesclar os arquivos desta pasta com os do servidor?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>Tem certeza de que deseja remover esta tarefa de sincronização? Os arquivos já sincronizados continuam neste computador.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Tipos de arquivo que não devem ser sincronizados</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Pasta de sincronização neste computador</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>As extensões começam com um ponto, por exemplo .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>O assistente está pronto para remover o [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Suas alterações foram salvas.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Clique no ícone do Driftwell na barra de menus para ver o que está sendo sincronizado.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nomes de arquivo que não devem ser sincronizados:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar o proxy manualmente</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Serviço de retransmissão desativado</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>A conexão está instável. O Driftwell continua tentando.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Clique em Remover para remover o [ProductName] deste computador.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}O [ProductName] foi instalado</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloqueado por outro programa</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Escolha uma pasta no servidor e uma pasta neste computador para manter sincronizadas.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Para tentar novamente, execute o instalador mais tarde. Clique em Concluir para fechar o assistente.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conecte-se ao seu servidor</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Você pode sincronizar no máximo %1 pastas compartilhadas.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Enviando...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Avançar &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostrar um ícone nos arquivos que não são sincronizados</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Aguarde enquanto o assistente instala o [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Sair do Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não há espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nada foi alterado.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar um link de compartilhamento para este item.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Digite o nome de usuário do servidor proxy.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 dias</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Alterar...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Manutenção permite reparar ou remover o [ProductName] deste computador.\nClique em Avançar para continuar ou em Cancelar para sair.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Manter os dois arquivos e renomear o mais antigo</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;ceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>October</source>
        <translation>outubro</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maio</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Versões anteriores</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 já está em execução.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Clique em Instalar para começar. Para revisar ou alterar alguma configuração, clique em Voltar.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Arquivos maiores que %1 MB não são sincronizados.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}A instalação do [ProductName] foi interrompida</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Detalhes da conexão</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Setas azuis indicam que o arquivo está sendo sincronizado.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Vincular outro servidor</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando as configurações...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Digite um nome de usuário.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Sua pasta Driftwell agora está sincronizada com o servidor.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Fila de transferências</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Escolha um tipo de configuração</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Não foi possível iniciar o Driftwell. Reinicie o computador e tente novamente.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Corrige arquivos, atalhos e entradas de registro do [ProductName] ausentes ou danificados.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar atualização</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>O [ProductName] manterá as pastas que você escolher sincronizadas com o seu servidor.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>O [ProductName] foi instalado com sucesso.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>Você não tem permissão para acessar esta pasta compartilhada.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Modo de sincronização:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta somente leitura</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Esta pasta pertence a outro servidor.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Não é possível baixar este arquivo no momento.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Padrões sem curinga devem corresponder ao nome de arquivo inteiro.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomes de arquivo ignorados</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Uma versão mais recente do [ProductName] já está instalada.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Sua cota de armazenamento no servidor se esgotou. Libere espaço ou peça uma cota maior.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Fechar os programas automaticamente e reiniciá-los depois</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>A pasta de sincronização local não foi encontrada. Ela pode ter sido movida ou excluída.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>O assistente está copiando arquivos e atualizando o sistema.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Manter os dois arquivos e adicionar o nome do computador à cópia deste computador</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>Não há espaço livre suficiente neste computador. Libere espaço para continuar sincronizando.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Arquivos atualizados</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Sua cota de armazenamento no servidor se esgotou.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 horas</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>Nenhuma pasta pode ser sincronizada.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Foi encontrado um conflito. As duas versões foram mantidas.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>O novo idioma será usado depois que o Driftwell for reiniciado.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>Pasta já em uso</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Atualizando o Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licença</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>No servidor</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 é um ponto de montagem e não pode ser usado como pasta de sincronização.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>Nenhum evento para mostrar.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>As alterações feitas nesta pasta neste computador não são enviadas.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Histórico de sincronização</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Você só tem acesso de leitura a esta pasta compartilhada.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Usar um ícone monocromático na barra de menus</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>O certificado do servidor mudou. Confiar no novo certificado?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Digite o código de verificação do seu aplicativo autenticador.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>Você não tem acesso a esta pasta.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nova tarefa de sincronização</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Use * para representar quaisquer caracteres, por exemplo ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando arquivos...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Isso pode levar alguns minutos.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Manter o arquivo alterado por último</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Esta pasta já está sincronizada com outra pasta compartilhada.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Sincronize com o seu próprio servidor</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Procurar nesta rede</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Seus arquivos, em todos os computadores que você usa.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>A pasta no servidor não está disponível.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>A configuração foi concluída. O Driftwell já está sincronizando seus arquivos.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Para instalar o [ProductName] mais tarde, execute o instalador novamente.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Uma pasta só pode pertencer a uma tarefa de sincronização.</translation>
    </message>
</context>
</TS>
