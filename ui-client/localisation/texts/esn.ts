<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>The server's certificate has changed since the last connection.</source>
        <translation>El certificado del servidor ha cambiado desde la última conexión.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The sync task could not be created. Check the connection to the server and try again.</source>
        <translation>No se ha podido crear la tarea de sincronización. Comprueba la conexión con el servidor y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar el tutorial</translation>
    </message>
    <message>
        <source>Files that exist in both places are kept, and the older copy is renamed.</source>
        <translation>Los archivos que existen en ambos lugares se conservan y la copia más antigua se renombra.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>The server's security certificate could not be verified.</source>
        <translation>No se ha podido verificar el certificado de seguridad del servidor.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? Its files stay on the server.</source>
        <translation>¿Dejar de sincronizar esta carpeta compartida? Sus archivos se mantienen en el servidor.</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>&amp;Do not close the programs (a restart may be needed)</source>
        <translation>&amp;No cerrar los programas (puede ser necesario reiniciar)</translation>
    </message>
    <message>
        <source>Driftwell is ready.</source>
        <translation>Driftwell está listo.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is used up.</source>
        <translation>La cuota de la carpeta compartida se ha agotado.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Se ha detenido la descarga.</translation>
    </message>
    <message>
        <source>Set up [ProductName] on this computer.</source>
        <translation>Instala [ProductName] en este ordenador.</translation>
    </message>
    <message>
        <source>Through the relay service</source>
        <translation>A través del servicio de retransmisión</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Driftwell is set up and has started syncing.</source>
        <translation>Driftwell está configurado y ha empezado a sincronizar.</translation>
    </message>
    <message>
        <source>Driftwell could not reach the relay service because of a system error. Try again later.</source>
        <translation>Driftwell no ha podido acceder al servicio de retransmisión debido a un error del sistema. Inténtalo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established.</source>
        <translation>No se ha podido establecer una conexión segura con el servidor.</translation>
    </message>
    <message>
        <source>Choose which shared folders on the server to sync with this computer.</source>
        <translation>Elige qué carpetas compartidas del servidor quieres sincronizar con este ordenador.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>{\DwHeading}Installing [ProductName]</source>
        <translation>{\DwHeading}Instalando [ProductName]</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Más consejos</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Añadir una tarea de sincronización</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Driftwell is being updated. Please wait.</source>
        <translation>Driftwell se está actualizando. Espera un momento.</translation>
    </message>
    <message>
        <source>Open Driftwell</source>
        <translation>Abrir Driftwell</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>viernes</translation>
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
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>%1 could not be downloaded.</source>
        <translation>No se ha podido descargar %1.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Your computer has not been changed.</source>
        <translation>No se ha realizado ningún cambio en el ordenador.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>Choose the folder to sync.</source>
        <translation>Elige la carpeta que quieres sincronizar.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Files in folders you deselect are removed from this computer but stay on the server.</source>
        <translation>Los archivos de las carpetas que desmarques se eliminan de este ordenador, pero se mantienen en el servidor.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted. Connect the volume to continue syncing.</source>
        <translation>La carpeta de sincronización está en un volumen que no está montado. Conecta el volumen para seguir sincronizando.</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>Welcome to Driftwell!</source>
        <translation>¡Bienvenido a Driftwell!</translation>
    </message>
    <message>
        <source>The update failed. The previous version is still in use.</source>
        <translation>La actualización ha fallado. Se sigue usando la versión anterior.</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>%1 was updated</source>
        <translation>%1 se ha actualizado</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Driftwell is initializing...</source>
        <translation>Driftwell se está inicializando...</translation>
    </message>
    <message>
        <source>The wizard was stopped before it finished.</source>
        <translation>El asistente se ha detenido antes de terminar.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>The server answered in a way Driftwell does not understand. Update the server and the client to the latest version.</source>
        <translation>El servidor ha respondido de una forma que Driftwell no entiende. Actualiza el servidor y el cliente a la última versión.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>The sync direction of this folder differs from the one set on the server.</source>
        <translation>La dirección de sincronización de esta carpeta no coincide con la configurada en el servidor.</translation>
    </message>
    <message>
        <source>Processing %1</source>
        <translation>Procesando %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
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
        <translation>No se ha podido crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Custom setup</source>
        <translation>Configuración personalizada</translation>
    </message>
    <message>
        <source>The server runs an older version that Driftwell does not support. Update the server.</source>
        <translation>El servidor ejecuta una versión antigua que Driftwell no admite. Actualiza el servidor.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>The sync direction differs from the server's setting.</source>
        <translation>La dirección de sincronización no coincide con el ajuste del servidor.</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>The server does not accept connections from this IP address. Ask your administrator for access.</source>
        <translation>El servidor no acepta conexiones desde esta dirección IP. Pide acceso a tu administrador.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizando %1 archivos</translation>
    </message>
    <message>
        <source>The disk on the server is full.</source>
        <translation>El disco del servidor está lleno.</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>The disk on this computer is full. Syncing is paused.</source>
        <translation>El disco de este ordenador está lleno. La sincronización está en pausa.</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Dejar de sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>The disk on this computer is full.</source>
        <translation>El disco de este ordenador está lleno.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>The network connection was lost. Driftwell will reconnect automatically.</source>
        <translation>Se ha perdido la conexión de red. Driftwell volverá a conectarse automáticamente.</translation>
    </message>
    <message>
        <source>Click Finish to close the wizard.</source>
        <translation>Haz clic en Finalizar para cerrar el asistente.</translation>
    </message>
    <message>
        <source>A new version is ready. Click to install it.</source>
        <translation>Hay una nueva versión lista. Haz clic para instalarla.</translation>
    </message>
    <message>
        <source>You only have read access to this folder. Files will be downloaded but never uploaded.</source>
        <translation>Solo tienes acceso de lectura a esta carpeta. Los archivos se descargarán, pero nunca se subirán.</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jueves</translation>
    </message>
    <message>
        <source>Allow connections through the relay service</source>
        <translation>Permitir conexiones a través del servicio de retransmisión</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the server.</source>
        <translation>La carpeta compartida ya no existe en el servidor.</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>This version of Driftwell is too old for the server. Install the latest version.</source>
        <translation>Esta versión de Driftwell es demasiado antigua para el servidor. Instala la última versión.</translation>
    </message>
    <message>
        <source>Click Cancel to exit the wizard without installing.</source>
        <translation>Haz clic en Cancelar para salir del asistente sin instalar.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer for this folder.</source>
        <translation>No hay suficiente espacio libre en este ordenador para esta carpeta.</translation>
    </message>
    <message>
        <source>The relay service could not find a route to your server. Check that the server is online.</source>
        <translation>El servicio de retransmisión no ha encontrado ninguna ruta hasta tu servidor. Comprueba que el servidor esté en línea.</translation>
    </message>
    <message>
        <source>The shared folder on the server is not mounted. Mount it on the server and try again.</source>
        <translation>La carpeta compartida no está montada en el servidor. Móntala en el servidor y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on the server.</source>
        <translation>La carpeta no está vacía. Sus archivos se fusionarán con los del servidor.</translation>
    </message>
    <message>
        <source>Sharing links are not available through the relay service.</source>
        <translation>Los enlaces para compartir no están disponibles a través del servicio de retransmisión.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Tu cuota en el servidor se ha agotado.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Excluded folders...</source>
        <translation>Carpetas excluidas...</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Unlink the folder and link it again to rebuild it.</source>
        <translation>La base de datos de sincronización local está dañada. Desvincula la carpeta y vuelve a vincularla para reconstruirla.</translation>
    </message>
    <message>
        <source>Click Repair to fix the installation of [ProductName].</source>
        <translation>Haz clic en Reparar para corregir la instalación de [ProductName].</translation>
    </message>
    <message>
        <source>Verification code:</source>
        <translation>Código de verificación:</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunes</translation>
    </message>
    <message>
        <source>The previous versions of this file cannot be listed.</source>
        <translation>No se pueden mostrar las versiones anteriores de este archivo.</translation>
    </message>
    <message>
        <source>Syncing of this folder was turned off by your administrator.</source>
        <translation>Tu administrador ha desactivado la sincronización de esta carpeta.</translation>
    </message>
    <message>
        <source>When syncing is finished:</source>
        <translation>Cuando termine la sincronización:</translation>
    </message>
    <message>
        <source>Driftwell gave up after %1 attempts. Check your network and try again.</source>
        <translation>Driftwell ha desistido tras %1 intentos. Comprueba tu red y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Put files into the Driftwell folder and they appear on your server and your other computers.</source>
        <translation>Coloca archivos en la carpeta Driftwell y aparecerán en tu servidor y en tus otros ordenadores.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Connection unstable</source>
        <translation>Conexión inestable</translation>
    </message>
    <message>
        <source>The wizard has everything it needs to begin the installation.</source>
        <translation>El asistente tiene todo lo necesario para empezar la instalación.</translation>
    </message>
    <message>
        <source>Check your settings, then click Done to start syncing.</source>
        <translation>Revisa los ajustes y haz clic en Listo para empezar a sincronizar.</translation>
    </message>
    <message>
        <source>You need administrator rights to install [ProductName]. Continue anyway?</source>
        <translation>Necesitas permisos de administrador para instalar [ProductName]. ¿Quieres continuar de todos modos?</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
        <translation>Otra tarea ya sincroniza la carpeta %1.</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Elige qué quieres hacer.</translation>
    </message>
    <message>
        <source>The server at this address has changed. Link the sync task again.</source>
        <translation>El servidor de esta dirección ha cambiado. Vuelve a vincular la tarea de sincronización.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>The relay service is turned off on the server. Connect directly or turn the service on.</source>
        <translation>El servicio de retransmisión está desactivado en el servidor. Conéctate directamente o activa el servicio.</translation>
    </message>
    <message>
        <source>Driftwell is not connected to a server.</source>
        <translation>Driftwell no está conectado a ningún servidor.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>Choose the folders on the server and on this computer yourself.</source>
        <translation>Elige tú mismo las carpetas del servidor y de este ordenador.</translation>
    </message>
    <message>
        <source>To change what is synced, open the settings.</source>
        <translation>Para cambiar lo que se sincroniza, abre los ajustes.</translation>
    </message>
    <message>
        <source>The server's security certificate has changed. Confirm that you trust the new certificate.</source>
        <translation>El certificado de seguridad del servidor ha cambiado. Confirma que confías en el nuevo certificado.</translation>
    </message>
    <message>
        <source>The connection to the server was closed.</source>
        <translation>Se ha cerrado la conexión con el servidor.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Driftwell is indexing this folder.</source>
        <translation>Driftwell está indexando esta carpeta.</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ajustes avanzados</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Folders in this list are never synced.</source>
        <translation>Las carpetas de esta lista nunca se sincronizan.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Back up to:</source>
        <translation>Destino de la copia:</translation>
    </message>
    <message>
        <source>Sync your home folder on the server with a Driftwell folder on this computer.</source>
        <translation>Sincroniza tu carpeta personal del servidor con una carpeta Driftwell en este ordenador.</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a system error.</source>
        <translation>No se ha podido cargar la lista de carpetas debido a un error del sistema.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Dirección de sincronización</translation>
    </message>
    <message>
        <source>Change, repair or remove [ProductName].</source>
        <translation>Cambiar, reparar o quitar [ProductName].</translation>
    </message>
    <message>
        <source>Files in this folder are synced with the server.</source>
        <translation>Los archivos de esta carpeta se sincronizan con el servidor.</translation>
    </message>
    <message>
        <source>[ProductName] could not be installed. Your computer has not been changed.</source>
        <translation>No se ha podido instalar [ProductName]. No se ha realizado ningún cambio en el ordenador.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>The following programs use files that [ProductName] Setup must update.</source>
        <translation>Los siguientes programas usan archivos que el programa de instalación de [ProductName] debe actualizar.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Ready to install [ProductName]</source>
        <translation>Listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Do not sync files larger than:</source>
        <translation>No sincronizar archivos de más de:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Space on this computer</source>
        <translation>Espacio en este ordenador</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Turn it on for your account first.</source>
        <translation>Tu administrador exige la verificación en dos pasos. Actívala primero en tu cuenta.</translation>
    </message>
    <message>
        <source>Choose files to sync</source>
        <translation>Elegir archivos para sincronizar</translation>
    </message>
    <message>
        <source>Remove the program</source>
        <translation>Quitar el programa</translation>
    </message>
    <message>
        <source>Now syncing: %1</source>
        <translation>Sincronizando ahora: %1</translation>
    </message>
    <message>
        <source>Start Driftwell when I log in</source>
        <translation>Abrir Driftwell al iniciar sesión</translation>
    </message>
    <message>
        <source>Sign in to your server to get started.</source>
        <translation>Inicia sesión en tu servidor para empezar.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>The shared folder could not be turned on for syncing.</source>
        <translation>No se ha podido activar la sincronización de la carpeta compartida.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Encrypted connection</source>
        <translation>Conexión cifrada</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed.</source>
        <translation>[ProductName] no tiene características que se puedan cambiar.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Quick setup uses the recommended settings. Custom setup lets you choose each one.</source>
        <translation>La configuración rápida usa los ajustes recomendados. La configuración personalizada te permite elegir cada uno.</translation>
    </message>
    <message>
        <source>When a file was changed on both sides:</source>
        <translation>Cuando un archivo se ha modificado en ambos lados:</translation>
    </message>
    <message>
        <source>This file has no earlier versions.</source>
        <translation>Este archivo no tiene versiones anteriores.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seleccionar...</translation>
    </message>
    <message>
        <source>A green check mark means a file is up to date.</source>
        <translation>Una marca de verificación verde indica que un archivo está actualizado.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>Choose the folders to back up</source>
        <translation>Elige las carpetas de las que quieres hacer una copia de seguridad</translation>
    </message>
    <message>
        <source>Excluded files:</source>
        <translation>Archivos excluidos:</translation>
    </message>
    <message>
        <source>Unlinking stops syncing with this server. Your files stay on this computer. Continue?</source>
        <translation>Al desvincular, se deja de sincronizar con este servidor. Tus archivos se mantienen en este ordenador. ¿Quieres continuar?</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el Finder</translation>
    </message>
    <message>
        <source>An error stopped the [ProductName] Setup Wizard.</source>
        <translation>Un error ha detenido el asistente de instalación de [ProductName].</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Sync status at a glance</source>
        <translation>El estado de sincronización de un vistazo</translation>
    </message>
    <message>
        <source>Removes [ProductName] from this computer. Your synced files stay where they are.</source>
        <translation>Quita [ProductName] de este ordenador. Tus archivos sincronizados se quedan donde están.</translation>
    </message>
    <message>
        <source>This folder cannot be used for syncing. Choose another one.</source>
        <translation>Esta carpeta no se puede usar para sincronizar. Elige otra.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>%1 shared the folder "%2" with you.</source>
        <translation>%1 ha compartido contigo la carpeta «%2».</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Choose a folder that no other sync task uses.</source>
        <translation>Elige una carpeta que no use ninguna otra tarea de sincronización.</translation>
    </message>
    <message>
        <source>Your synced files and folders are not deleted.</source>
        <translation>Tus archivos y carpetas sincronizados no se eliminan.</translation>
    </message>
    <message>
        <source>Update Driftwell to use selective sync.</source>
        <translation>Actualiza Driftwell para usar la sincronización selectiva.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Use an encrypted connection (HTTPS)</source>
        <translation>Usar una conexión cifrada (HTTPS)</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Empezar ahora</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Cambiar carpeta...</translation>
    </message>
    <message>
        <source>Choose folders</source>
        <translation>Elegir carpetas</translation>
    </message>
    <message>
        <source>0 means no limit.</source>
        <translation>0 significa sin límite.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descargar</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar estado de sincronización</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Keep files on the server when I delete them on this computer</source>
        <translation>Mantener los archivos en el servidor cuando los elimine de este ordenador</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Elige una carpeta del servidor.</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>En este ordenador</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Se ha descargado %1.</translation>
    </message>
    <message>
        <source>Click Back to review your choice, or Cancel to exit the wizard.</source>
        <translation>Haz clic en Atrás para revisar tu elección o en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Need help setting up? Open the online guide.</source>
        <translation>¿Necesitas ayuda con la configuración? Abre la guía en línea.</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue anyway.</source>
        <translation>Cierra estos programas y haz clic en Reintentar, o haz clic en Ignorar para continuar de todos modos.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar los ajustes de proxy del sistema</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Driftwell noticed changes in your folders and is syncing them.</source>
        <translation>Driftwell ha detectado cambios en tus carpetas y los está sincronizando.</translation>
    </message>
    <message>
        <source>No folder selected.</source>
        <translation>No se ha seleccionado ninguna carpeta.</translation>
    </message>
    <message>
        <source>Choose another pair of folders to keep in sync.</source>
        <translation>Elige otro par de carpetas para mantenerlas sincronizadas.</translation>
    </message>
    <message>
        <source>Enter the server's host name, IP address or relay ID.</source>
        <translation>Introduce el nombre de host, la dirección IP o el ID de retransmisión del servidor.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\DwTitleLarge}Bienvenido al asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform on [ProductName].</source>
        <translation>Selecciona la operación que quieres realizar en [ProductName].</translation>
    </message>
    <message>
        <source>The user name is not valid on this server.</source>
        <translation>El nombre de usuario no es válido en este servidor.</translation>
    </message>
    <message>
        <source>The relay ID is not valid. Check the ID and try again.</source>
        <translation>El ID de retransmisión no es válido. Comprueba el ID y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Se ha producido un error. Inténtalo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Your Driftwell folder</source>
        <translation>Tu carpeta Driftwell</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar a %1</translation>
    </message>
    <message>
        <source>To install [ProductName], you must accept the terms of this agreement.</source>
        <translation>Para instalar [ProductName], debes aceptar los términos de este contrato.</translation>
    </message>
    <message>
        <source>Do you really want to unlink this computer from the server?</source>
        <translation>¿Seguro que quieres desvincular este ordenador del servidor?</translation>
    </message>
    <message>
        <source>Work from the menu bar</source>
        <translation>Trabaja desde la barra de menús</translation>
    </message>
    <message>
        <source>From there you can pause syncing or open your settings.</source>
        <translation>Desde ahí puedes pausar la sincronización o abrir los ajustes.</translation>
    </message>
    <message>
        <source>Files cannot be shared through a relay connection.</source>
        <translation>No se pueden compartir archivos a través de una conexión de retransmisión.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Los cambios en unidades de red pueden detectarse con retraso.</translation>
    </message>
    <message>
        <source>%1 of %2 files processed</source>
        <translation>%1 de %2 archivos procesados</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecciona una carpeta</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Detecting the connection type...</source>
        <translation>Detectando el tipo de conexión...</translation>
    </message>
    <message>
        <source>The folders you choose are copied to the server. Deleting a file on this computer does not delete its backup.</source>
        <translation>Las carpetas que elijas se copian en el servidor. Eliminar un archivo en este ordenador no elimina su copia de seguridad.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vista general del servidor</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy server.</source>
        <translation>Introduce la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>This file is locked by another program.</source>
        <translation>Otro programa ha bloqueado este archivo.</translation>
    </message>
    <message>
        <source>{\DwHeading}Change, repair or remove installation</source>
        <translation>{\DwHeading}Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>Standing by</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}Welcome to the [ProductName] Maintenance Wizard</source>
        <translation>{\DwTitleLarge}Bienvenido al asistente de mantenimiento de [ProductName]</translation>
    </message>
    <message>
        <source>Do you really want to cancel the installation of [ProductName]?</source>
        <translation>¿Seguro que quieres cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>This computer is already linked to this server.</source>
        <translation>Este ordenador ya está vinculado a este servidor.</translation>
    </message>
    <message>
        <source>Copy a sharing link</source>
        <translation>Copiar un enlace para compartir</translation>
    </message>
    <message>
        <source>%1\nVersion:\t%2</source>
        <translation>%1\nVersión:\t%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>The user name or password is incorrect. Enter them again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Vuelve a introducirlos.</translation>
    </message>
    <message>
        <source>Remove this shared folder from the list?</source>
        <translation>¿Quitar esta carpeta compartida de la lista?</translation>
    </message>
    <message>
        <source>Your files stay on your own server.</source>
        <translation>Tus archivos se quedan en tu propio servidor.</translation>
    </message>
    <message>
        <source>The shared folder could not be removed from the list.</source>
        <translation>No se ha podido quitar la carpeta compartida de la lista.</translation>
    </message>
    <message>
        <source>Private, fast and always up to date</source>
        <translation>Privado, rápido y siempre actualizado</translation>
    </message>
    <message>
        <source>Stop syncing these folders</source>
        <translation>Dejar de sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>Recently changed</source>
        <translation>Modificados recientemente</translation>
    </message>
    <message>
        <source>The connection to the server is unstable. Driftwell keeps trying to reconnect.</source>
        <translation>La conexión con el servidor es inestable. Driftwell sigue intentando volver a conectarse.</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer.\nClick Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El asistente de instalación instalará [ProductName] en tu ordenador.\nHaz clic en Siguiente para continuar o en Cancelar para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lee atentamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Sync activity</source>
        <translation>Actividad de sincronización</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>%1 shared a folder with you</source>
        <translation>%1 ha compartido una carpeta contigo</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>The verification code is incorrect or has expired.</source>
        <translation>El código de verificación no es correcto o ha caducado.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Carpeta compartida no encontrada</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes on this computer are not uploaded.</source>
        <translation>Esta carpeta es de solo lectura. Los cambios realizados en este ordenador no se suben.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parámetro no válido.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Última subida: %1</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>You can change the connection settings later.</source>
        <translation>Puedes cambiar los ajustes de conexión más adelante.</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensión de archivo</translation>
    </message>
    <message>
        <source>Welcome to Driftwell</source>
        <translation>Bienvenido a Driftwell</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>Merge files when linking a folder</source>
        <translation>Fusionar archivos al vincular una carpeta</translation>
    </message>
    <message>
        <source>The backup could not be completed. Check the destination folder and try again.</source>
        <translation>No se ha podido completar la copia de seguridad. Comprueba la carpeta de destino y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Esperando</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ajustes de red</translation>
    </message>
    <message>
        <source>Files with these extensions are not synced.</source>
        <translation>Los archivos con estas extensiones no se sincronizan.</translation>
    </message>
    <message>
        <source>Enter the address of your server and your account details.</source>
        <translation>Introduce la dirección de tu servidor y los datos de tu cuenta.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced.</source>
        <translation>Esta carpeta se solapa con una carpeta que ya se está sincronizando.</translation>
    </message>
    <message>
        <source>Cancel installation</source>
        <translation>Cancelar instalación</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Version not supported</source>
        <translation>Versión no compatible</translation>
    </message>
    <message>
        <source>There is not enough quota left on the server for this folder.</source>
        <translation>No queda suficiente cuota en el servidor para esta carpeta.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del ordenador</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Double-click to edit the extension</source>
        <translation>Haz doble clic para editar la extensión</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] failed</source>
        <translation>{\DwTitleLarge}No se ha podido instalar [ProductName]</translation>
    </message>
    <message>
        <source>The wizard is ready to repair [ProductName].</source>
        <translation>El asistente está listo para reparar [ProductName].</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>Always use the file from the server</source>
        <translation>Usar siempre el archivo del servidor</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Comprobando la contraseña...</translation>
    </message>
    <message>
        <source>Lets you change which features of [ProductName] are installed.</source>
        <translation>Permite cambiar qué características de [ProductName] se instalan.</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Probar conexión</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>The folder list could not be loaded because of a network error.</source>
        <translation>No se ha podido cargar la lista de carpetas debido a un error de red.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Volver a sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>Double-click the icon to open Driftwell.</source>
        <translation>Haz doble clic en el icono para abrir Driftwell.</translation>
    </message>
    <message>
        <source>Create a Driftwell folder in my home folder</source>
        <translation>Crear una carpeta Driftwell en mi carpeta personal</translation>
    </message>
    <message>
        <source>Open the Driftwell folder</source>
        <translation>Abrir la carpeta Driftwell</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martes</translation>
    </message>
    <message>
        <source>&amp;Start [ProductName] now</source>
        <translation>&amp;Iniciar [ProductName] ahora</translation>
    </message>
    <message>
        <source>Security warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Try to sync again</source>
        <translation>Intentar sincronizar de nuevo</translation>
    </message>
    <message>
        <source>This version of [ProductName] is already installed.</source>
        <translation>Esta versión de [ProductName] ya está instalada.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>El servidor proxy requiere una contraseña</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>If you continue, you may have to restart your computer afterwards.</source>
        <translation>Si continúas, es posible que tengas que reiniciar el ordenador después.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Elegir carpetas para sincronizar</translation>
    </message>
    <message>
        <source>Search for servers on this network</source>
        <translation>Buscar servidores en esta red</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. Nothing is deleted.</source>
        <translation>Los archivos de esta carpeta se fusionarán con los del servidor. No se elimina nada.</translation>
    </message>
    <message>
        <source>Changed a file by mistake? Restore an earlier version from the server.</source>
        <translation>¿Has modificado un archivo por error? Restaura una versión anterior desde el servidor.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Driftwell is starting...</source>
        <translation>Driftwell se está iniciando...</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambiar carpeta de sincronización</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The port number must be between 1 and 65535.</source>
        <translation>El número de puerto debe estar entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Mount point not available</source>
        <translation>Punto de montaje no disponible</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Todo listo</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Save them now?</source>
        <translation>Los cambios no se han guardado. ¿Quieres guardarlos ahora?</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Driftwell keeps the files on this computer and on your server in sync.</source>
        <translation>Driftwell mantiene sincronizados los archivos de este ordenador y los de tu servidor.</translation>
    </message>
    <message>
        <source>Merge the files in this folder with those on the server?</source>
        <translation>¿Fusionar los archivos de esta carpeta con los del servidor?</translation>
    </message>
    <message>
        <source>Do you really want to remove this sync task? Files already synced stay on this computer.</source>
        <translation>¿Seguro que quieres quitar esta tarea de sincronización? Los archivos ya sincronizados se quedan en este ordenador.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>File types not to sync</source>
        <translation>Tipos de archivo que no se sincronizan</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Sync folder on this computer</source>
        <translation>Carpeta de sincronización en este ordenador</translation>
    </message>
    <message>
        <source>Extensions start with a dot, for example .tmp</source>
        <translation>Las extensiones empiezan por un punto, por ejemplo .tmp</translation>
    </message>
    <message>
        <source>The wizard is ready to remove [ProductName].</source>
        <translation>El asistente está listo para quitar [ProductName].</translation>
    </message>
    <message>
        <source>Your changes were saved.</source>
        <translation>Los cambios se han guardado.</translation>
    </message>
    <message>
        <source>Click the Driftwell icon in the menu bar to see what is being synced.</source>
        <translation>Haz clic en el icono de Driftwell en la barra de menús para ver qué se está sincronizando.</translation>
    </message>
    <message>
        <source>File names not to sync:</source>
        <translation>Nombres de archivo que no se sincronizan:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar el proxy manualmente</translation>
    </message>
    <message>
        <source>Relay service disabled</source>
        <translation>Servicio de retransmisión desactivado</translation>
    </message>
    <message>
        <source>The connection is unstable. Driftwell keeps trying.</source>
        <translation>La conexión es inestable. Driftwell sigue intentándolo.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from this computer.</source>
        <translation>Haz clic en Quitar para quitar [ProductName] de este ordenador.</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Volver a sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}[ProductName] has been installed</source>
        <translation>{\DwTitleLarge}[ProductName] se ha instalado</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloqueado por otro programa</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer to keep in sync.</source>
        <translation>Elige una carpeta del servidor y otra de este ordenador para mantenerlas sincronizadas.</translation>
    </message>
    <message>
        <source>To try again, run the installer later. Click Finish to close the wizard.</source>
        <translation>Para volver a intentarlo, ejecuta el instalador más tarde. Haz clic en Finalizar para cerrar el asistente.</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conéctate a tu servidor</translation>
    </message>
    <message>
        <source>You can sync at most %1 shared folders.</source>
        <translation>Puedes sincronizar como máximo %1 carpetas compartidas.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostrar un icono en los archivos que no se sincronizan</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Please wait while the wizard installs [ProductName].</source>
        <translation>Espera mientras el asistente instala [ProductName].</translation>
    </message>
    <message>
        <source>Quit Driftwell</source>
        <translation>Salir de Driftwell</translation>
    </message>
    <message>
        <source>Driftwell Backup</source>
        <translation>Talvane Driftwell</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>No hay suficiente espacio libre en este ordenador.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>No se puede crear un enlace para compartir este elemento.</translation>
    </message>
    <message>
        <source>Enter the user name for the proxy server.</source>
        <translation>Introduce el nombre de usuario del servidor proxy.</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Cambiar...</translation>
    </message>
    <message>
        <source>The Maintenance Wizard lets you repair or remove [ProductName] on this computer.\nClick Next to continue or Cancel to exit.</source>
        <translation>El asistente de mantenimiento te permite reparar o quitar [ProductName] de este ordenador.\nHaz clic en Siguiente para continuar o en Cancelar para salir.</translation>
    </message>
    <message>
        <source>Keep both files and rename the older one</source>
        <translation>Conservar ambos archivos y renombrar el más antiguo</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Previous versions</source>
        <translation>Versiones anteriores</translation>
    </message>
    <message>
        <source>%1 is already running.</source>
        <translation>%1 ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Click Install to begin. To review or change any of your settings, click Back.</source>
        <translation>Haz clic en Instalar para empezar. Para revisar o cambiar algún ajuste, haz clic en Atrás.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB are not synced.</source>
        <translation>Los archivos de más de %1 MB no se sincronizan.</translation>
    </message>
    <message>
        <source>{\DwTitleLarge}The installation of [ProductName] was interrupted</source>
        <translation>{\DwTitleLarge}Se ha interrumpido la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Connection details</source>
        <translation>Detalles de la conexión</translation>
    </message>
    <message>
        <source>Blue arrows mean a file is being synced.</source>
        <translation>Las flechas azules indican que un archivo se está sincronizando.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Vincular otro servidor</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando los ajustes...</translation>
    </message>
    <message>
        <source>Enter a user name.</source>
        <translation>Introduce un nombre de usuario.</translation>
    </message>
    <message>
        <source>Your Driftwell folder is now in sync with the server.</source>
        <translation>Tu carpeta Driftwell ya está sincronizada con el servidor.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones en el escritorio</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Cola de transferencias</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Elige un tipo de configuración</translation>
    </message>
    <message>
        <source>Driftwell could not start. Restart your computer and try again.</source>
        <translation>Driftwell no se ha podido iniciar. Reinicia el ordenador y vuelve a intentarlo.</translation>
    </message>
    <message>
        <source>Fixes missing or damaged files, shortcuts and registry entries of [ProductName].</source>
        <translation>Corrige archivos, accesos directos y entradas del registro de [ProductName] que falten o estén dañados.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>Del %1 al %2</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar actualización</translation>
    </message>
    <message>
        <source>[ProductName] will keep the folders you choose in sync with your server.</source>
        <translation>[ProductName] mantendrá sincronizadas con tu servidor las carpetas que elijas.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionar</translation>
    </message>
    <message>
        <source>[ProductName] was installed successfully.</source>
        <translation>[ProductName] se ha instalado correctamente.</translation>
    </message>
    <message>
        <source>You do not have permission to access this shared folder.</source>
        <translation>No tienes permiso para acceder a esta carpeta compartida.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>Sync mode:</source>
        <translation>Modo de sincronización:</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>This folder belongs to a different server.</source>
        <translation>Esta carpeta pertenece a otro servidor.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Este archivo no se puede descargar en este momento.</translation>
    </message>
    <message>
        <source>Patterns without a wildcard must match the whole file name.</source>
        <translation>Los patrones sin comodín deben coincidir con el nombre de archivo completo.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenido</translation>
    </message>
    <message>
        <source>A newer version of [ProductName] is already installed.</source>
        <translation>Ya hay instalada una versión más reciente de [ProductName].</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este ordenador</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up. Free up space or ask for a larger quota.</source>
        <translation>Tu cuota de almacenamiento en el servidor se ha agotado. Libera espacio o solicita una cuota mayor.</translation>
    </message>
    <message>
        <source>&amp;Close the programs automatically and restart them afterwards</source>
        <translation>&amp;Cerrar los programas automáticamente y reiniciarlos después</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>No se encuentra la carpeta de sincronización local. Puede que se haya movido o eliminado.</translation>
    </message>
    <message>
        <source>The wizard is copying files and updating your system.</source>
        <translation>El asistente está copiando archivos y actualizando el sistema.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Keep both files and add the computer name to the copy from this computer</source>
        <translation>Conservar ambos archivos y añadir el nombre del ordenador a la copia de este ordenador</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up space to continue syncing.</source>
        <translation>No hay suficiente espacio libre en este ordenador. Libera espacio para seguir sincronizando.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Your storage quota on the server is used up.</source>
        <translation>Tu cuota de almacenamiento en el servidor se ha agotado.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>No folder can be synced.</source>
        <translation>No se puede sincronizar ninguna carpeta.</translation>
    </message>
    <message>
        <source>A conflict was found. Both versions were kept.</source>
        <translation>Se ha detectado un conflicto. Se han conservado ambas versiones.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Ready to remove [ProductName]</source>
        <translation>Listo para quitar [ProductName]</translation>
    </message>
    <message>
        <source>The new language is used after Driftwell restarts.</source>
        <translation>El nuevo idioma se usará cuando Driftwell se reinicie.</translation>
    </message>
    <message>
        <source>Folder already in use</source>
        <translation>La carpeta ya está en uso</translation>
    </message>
    <message>
        <source>Updating Driftwell...</source>
        <translation>Actualizando Driftwell...</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>En el servidor</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 es un punto de montaje y no se puede usar como carpeta de sincronización.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>No events to show.</source>
        <translation>No hay eventos que mostrar.</translation>
    </message>
    <message>
        <source>Changes to this folder on this computer are not uploaded.</source>
        <translation>Los cambios realizados en esta carpeta en este ordenador no se suben.</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historial de sincronización</translation>
    </message>
    <message>
        <source>You only have read access to this shared folder.</source>
        <translation>Solo tienes acceso de lectura a esta carpeta compartida.</translation>
    </message>
    <message>
        <source>Use a monochrome menu bar icon</source>
        <translation>Usar un icono monocromo en la barra de menús</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Folder is not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>The server's certificate has changed. Trust the new certificate?</source>
        <translation>El certificado del servidor ha cambiado. ¿Confiar en el nuevo certificado?</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app.</source>
        <translation>Introduce el código de verificación de tu aplicación de autenticación.</translation>
    </message>
    <message>
        <source>You do not have access to this folder.</source>
        <translation>No tienes acceso a esta carpeta.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nueva tarea de sincronización</translation>
    </message>
    <message>
        <source>Use * to match any characters, for example ~*.tmp</source>
        <translation>Usa * para representar cualquier secuencia de caracteres, por ejemplo ~*.tmp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos...</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Esto puede tardar unos minutos.</translation>
    </message>
    <message>
        <source>Keep the file that was changed last</source>
        <translation>Conservar el archivo modificado más recientemente</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder.</source>
        <translation>Esta carpeta ya se sincroniza con otra carpeta compartida.</translation>
    </message>
    <message>
        <source>Sync with your own server</source>
        <translation>Sincroniza con tu propio servidor</translation>
    </message>
    <message>
        <source>Search this network</source>
        <translation>Buscar en esta red</translation>
    </message>
    <message>
        <source>Your files, on every computer you use.</source>
        <translation>Tus archivos, en todos tus ordenadores.</translation>
    </message>
    <message>
        <source>The folder on the server is not available.</source>
        <translation>La carpeta del servidor no está disponible.</translation>
    </message>
    <message>
        <source>Setup is complete. Driftwell is now syncing your files.</source>
        <translation>La configuración ha finalizado. Driftwell ya está sincronizando tus archivos.</translation>
    </message>
    <message>
        <source>Ready to repair [ProductName]</source>
        <translation>Listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>To install [ProductName] later, run the installer again.</source>
        <translation>Para instalar [ProductName] más tarde, vuelve a ejecutar el instalador.</translation>
    </message>
    <message>
        <source>One folder can belong to only one sync task.</source>
        <translation>Una carpeta solo puede pertenecer a una tarea de sincronización.</translation>
    </message>
</context>
</TS>
