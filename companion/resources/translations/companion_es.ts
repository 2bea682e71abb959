<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>companion</name>
    <message>
        <source>"%1" is no name of a site. Enter one such as meetings.example.com.</source>
        <translation>«%1» no es un nombre de sitio. Introduzca uno, por ejemplo meetings.example.com.</translation>
    </message>
    <message>
        <source>%1 Start the companion again.</source>
        <translation>%1 Vuelva a iniciar Companion.</translation>
    </message>
    <message>
        <source>%1 asks for a user name and password.</source>
        <translation>%1 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2. Make its folder writable and choose again.</source>
        <translation>No se puede cambiar %1: %2. Permita la escritura en su carpeta y vuelva a elegir.</translation>
    </message>
    <message>
        <source>%1 cannot be deleted. Make its folder writable and try again.</source>
        <translation>No se puede eliminar %1. Permita la escritura en su carpeta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 cannot be reached. Check your network connection and try again.</source>
        <translation>No se puede conectar con %1. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 did not accept your sign-in. Detect the account again to sign in anew.</source>
        <translation>%1 no aceptó su inicio de sesión. Busque la cuenta de nuevo para volver a iniciar sesión.</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 no respondió a tiempo. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>%1 does not accept a user name and password (Basic), the only way supported. Ask your administrator to allow it.</source>
        <translation>%1 no acepta nombre de usuario y contraseña (Basic), el único método admitido. Pida a su administrador que lo permita.</translation>
    </message>
    <message>
        <source>%1 does not have what was asked of it. Check its name, or tell your administrator.</source>
        <translation>%1 no tiene lo que se le pidió. Compruebe el nombre o avise a su administrador.</translation>
    </message>
    <message>
        <source>%1 does not let you in. Ask your administrator for access.</source>
        <translation>%1 no le permite el acceso. Solicítelo a su administrador.</translation>
    </message>
    <message>
        <source>%1 does not offer the encryption that is needed. Ask your administrator to mend it.</source>
        <translation>%1 no ofrece el cifrado necesario. Pida a su administrador que lo corrija.</translation>
    </message>
    <message>
        <source>%1 gave no usable answer. Check its name, or tell your administrator.</source>
        <translation>%1 no dio una respuesta utilizable. Compruebe el nombre o avise a su administrador.</translation>
    </message>
    <message>
        <source>%1 has a problem of its own. Try again later, or tell your administrator.</source>
        <translation>%1 tiene un problema interno. Inténtelo más tarde o avise a su administrador.</translation>
    </message>
    <message>
        <source>%1 has no Exchange service. Check the address, or ask your administrator.</source>
        <translation>%1 no tiene ningún servicio de Exchange. Compruebe la dirección o consulte a su administrador.</translation>
    </message>
    <message>
        <source>%1 is an Office 365 account.</source>
        <translation>%1 es una cuenta de Office 365.</translation>
    </message>
    <message>
        <source>%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or start the companion with --network.</source>
        <translation>%1 está fuera del entorno de pruebas y no se consultó. Use una cuenta o un sitio de la página «Probar», o inicie Companion con --network.</translation>
    </message>
    <message>
        <source>%1 keeps leading to other addresses. Tell your administrator.</source>
        <translation>%1 redirige una y otra vez a otras direcciones. Avise a su administrador.</translation>
    </message>
    <message>
        <source>%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your administrator.</source>
        <translation>%1 lleva a una dirección sin cifrar o no segura, que no se usa. Avise a su administrador.</translation>
    </message>
    <message>
        <source>%1 names no page for joining by number. Ask your administrator for its address.</source>
        <translation>%1 no indica ninguna página para unirse por número. Pida la dirección a su administrador.</translation>
    </message>
    <message>
        <source>%1 names no page of meeting settings. Ask your administrator for its address.</source>
        <translation>%1 no indica ninguna página de ajustes de reuniones. Pida la dirección a su administrador.</translation>
    </message>
    <message>
        <source>%1 needs your user name and password. Detect the account again and enter them.</source>
        <translation>%1 necesita su nombre de usuario y su contraseña. Busque la cuenta de nuevo e introdúzcalos.</translation>
    </message>
    <message>
        <source>%1 refused the user name or the password. Detect the account again.</source>
        <translation>%1 rechazó el nombre de usuario o la contraseña. Busque la cuenta de nuevo.</translation>
    </message>
    <message>
        <source>%1 says: "%2" Check the address, or ask your administrator.</source>
        <translation>%1 indica: «%2» Compruebe la dirección o consulte a su administrador.</translation>
    </message>
    <message>
        <source>%1 was not found. Check its name and your network connection.</source>
        <translation>No se encontró %1. Compruebe el nombre y la conexión de red.</translation>
    </message>
    <message>
        <source>A check for updates is already running.</source>
        <translation>Ya se están buscando actualizaciones.</translation>
    </message>
    <message>
        <source>A user name with a colon cannot be sent to %1. Use your email address.</source>
        <translation>No se puede enviar a %1 un nombre de usuario con dos puntos. Use su correo electrónico.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Respuesta</translation>
    </message>
    <message>
        <source>Asking %1.</source>
        <translation>Consultando %1.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings does not start after login any more.</source>
        <translation>Brenn Mivra Meetings ya no se inicia al entrar en la sesión.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings starts after your next login.</source>
        <translation>Brenn Mivra Meetings se iniciará la próxima vez que entre en la sesión.</translation>
    </message>
    <message>
        <source>Challenge</source>
        <translation>Solicitud</translation>
    </message>
    <message>
        <source>Challenges, their answers, and addresses that were opened</source>
        <translation>Solicitudes de autenticación, sus respuestas y direcciones abiertas</translation>
    </message>
    <message>
        <source>Checking for updates.</source>
        <translation>Buscando actualizaciones.</translation>
    </message>
    <message>
        <source>Choose a row to see its whole content.</source>
        <translation>Elija una fila para ver todo su contenido.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Li&amp;mpiar</translation>
    </message>
    <message>
        <source>Command to host</source>
        <translation>Comando al host</translation>
    </message>
    <message>
        <source>Command to plug-in</source>
        <translation>Comando al plugin</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>Contin&amp;uar</translation>
    </message>
    <message>
        <source>Co&amp;ntinue (%1 new)</source>
        <translation>Contin&amp;uar (%1 por ver)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>Copia las filas seleccionadas o todas las que se muestran</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Events (*.jsonl)</source>
        <translation>Eventos (*.jsonl)</translation>
    </message>
    <message>
        <source>Exchange did not accept the saved user name and password. Detect the account again in Preferences, Meetings.</source>
        <translation>Exchange no aceptó el nombre de usuario y la contraseña guardados. Busque la cuenta de nuevo en Preferencias, Reuniones.</translation>
    </message>
    <message>
        <source>Exchange did not accept this user name and password. Check them, then detect the account again.</source>
        <translation>Exchange no aceptó este nombre de usuario y esta contraseña. Compruébelos y busque la cuenta de nuevo.</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>Exportar eventos</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>Filter by name or content</source>
        <translation>Filtrar por nombre o contenido</translation>
    </message>
    <message>
        <source>Forgets all events</source>
        <translation>Descarta todos los eventos</translation>
    </message>
    <message>
        <source>Keeps the list as it is while you read</source>
        <translation>Detiene la lista mientras la lee</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Llavero</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Meetings can be scheduled from Microsoft Outlook once it is started again.</source>
        <translation>Podrá programar reuniones desde Microsoft Outlook cuando lo reinicie.</translation>
    </message>
    <message>
        <source>Meetings come from Google now.</source>
        <translation>Las reuniones proceden ahora de Google.</translation>
    </message>
    <message>
        <source>Meetings come from Microsoft Outlook now.</source>
        <translation>Las reuniones proceden ahora de Microsoft Outlook.</translation>
    </message>
    <message>
        <source>Meetings come from Mivra now.</source>
        <translation>Las reuniones proceden ahora de Mivra.</translation>
    </message>
    <message>
        <source>Meetings come from no calendar now.</source>
        <translation>Las reuniones ya no proceden de ningún calendario.</translation>
    </message>
    <message>
        <source>Microsoft Outlook schedules no meetings any more once it is started again.</source>
        <translation>Cuando reinicie Microsoft Outlook, ya no podrá programar reuniones desde él.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Nearby video devices are looked for. This companion finds none.</source>
        <translation>Se buscan dispositivos de vídeo cercanos. Este Companion no encuentra ninguno.</translation>
    </message>
    <message>
        <source>Nearby video devices are not looked for any more.</source>
        <translation>Ya no se buscan dispositivos de vídeo cercanos.</translation>
    </message>
    <message>
        <source>To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email address.</source>
        <translation>Para ver sus próximas reuniones, elija Microsoft Outlook en Preferencias, Reuniones e introduzca su correo electrónico.</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>Ningún navegador abrió %1. Abra la dirección manualmente.</translation>
    </message>
    <message>
        <source>No meetings in the days that you chose.</source>
        <translation>No hay reuniones en los días elegidos.</translation>
    </message>
    <message>
        <source>No site is known that could have updates. Choose one in Preferences, Account.</source>
        <translation>No se conoce ningún sitio que pueda tener actualizaciones. Elija uno en Preferencias, Cuenta.</translation>
    </message>
    <message>
        <source>No site is known. Choose one in Preferences, Account.</source>
        <translation>No se conoce ningún sitio. Elija uno en Preferencias, Cuenta.</translation>
    </message>
    <message>
        <source>Nobody is signed in as %1. Detect the account again to sign in.</source>
        <translation>Nadie ha iniciado sesión como %1. Busque la cuenta de nuevo para iniciar sesión.</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notificación</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Paus&amp;e</source>
        <translation>Pa&amp;usar</translation>
    </message>
    <message>
        <source>Personal room</source>
        <translation>Sala personal</translation>
    </message>
    <message>
        <source>Settings that were written, what changed in them, and keychain items</source>
        <translation>Ajustes escritos, sus cambios y elementos del llavero</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Almacén</translation>
    </message>
    <message>
        <source>Store write</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Telemetry</source>
        <translation>Telemetría</translation>
    </message>
    <message>
        <source>Telemetry cannot be kept in %1: %2. Free some space, or switch it off.</source>
        <translation>No se puede guardar la telemetría en %1: %2. Libere espacio o desactívela.</translation>
    </message>
    <message>
        <source>The certificate of %1 belongs to another name. Ask your administrator to mend it.</source>
        <translation>El certificado de %1 corresponde a otro nombre. Pida a su administrador que lo corrija.</translation>
    </message>
    <message>
        <source>The certificate of %1 has expired. Check the date of this computer, or ask your administrator to renew it.</source>
        <translation>El certificado de %1 ha caducado. Compruebe la fecha de este equipo o pida a su administrador que lo renueve.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid yet. Check the date of this computer.</source>
        <translation>El certificado de %1 aún no es válido. Compruebe la fecha de este equipo.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted. Ask your administrator before you go on.</source>
        <translation>El certificado de %1 no es de confianza. Consulte a su administrador antes de continuar.</translation>
    </message>
    <message>
        <source>The events are copied, without passwords and tokens.</source>
        <translation>Se copiaron los eventos, sin contraseñas ni tokens.</translation>
    </message>
    <message>
        <source>The events are in %1, without passwords and tokens.</source>
        <translation>Los eventos están en %1, sin contraseñas ni tokens.</translation>
    </message>
    <message>
        <source>The events could not be written to %1 (%2). Choose another folder.</source>
        <translation>No se pudieron escribir los eventos en %1 (%2). Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. Choose it in Preferences, Meetings.</source>
        <translation>Las reuniones de su calendario no aparecen aquí: este Companion solo lee Microsoft Outlook. Elíjalo en Preferencias, Reuniones.</translation>
    </message>
    <message>
        <source>The sandbox is still starting. Try again in a moment.</source>
        <translation>El entorno de pruebas aún se está iniciando. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>The search for an Exchange service was given up.</source>
        <translation>Se abandonó la búsqueda de un servicio de Exchange.</translation>
    </message>
    <message>
        <source>The sign-in of %1 cannot be renewed now. Refresh later.</source>
        <translation>El inicio de sesión de %1 no se puede renovar ahora. Actualice más tarde.</translation>
    </message>
    <message>
        <source>The sign-in of %1 could not be renewed. Detect the account again to sign in.</source>
        <translation>No se pudo renovar el inicio de sesión de %1. Busque la cuenta de nuevo para iniciar sesión.</translation>
    </message>
    <message>
        <source>The sign-in of %1 was not renewed in time. Refresh, or detect the account again.</source>
        <translation>El inicio de sesión de %1 no se renovó a tiempo. Actualice o busque la cuenta de nuevo.</translation>
    </message>
    <message>
        <source>The site has changed meanwhile. Check for updates again.</source>
        <translation>El sitio ha cambiado entretanto. Busque actualizaciones de nuevo.</translation>
    </message>
    <message>
        <source>The site is %1 now.</source>
        <translation>El sitio es ahora %1.</translation>
    </message>
    <message>
        <source>The site is %1 now. It has not answered yet.</source>
        <translation>El sitio es ahora %1. Aún no ha respondido.</translation>
    </message>
    <message>
        <source>The warning window</source>
        <translation>La ventana de advertencia</translation>
    </message>
    <message>
        <source>This email address has no usable domain. Check it for typing errors.</source>
        <translation>Este correo electrónico no tiene un dominio válido. Compruebe que esté bien escrito.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>Trace (error)</source>
        <translation>Traza (error)</translation>
    </message>
    <message>
        <source>Trace (warning)</source>
        <translation>Traza (advertencia)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Trazas</translation>
    </message>
    <message>
        <source>Version %1 is available.</source>
        <translation>La versión %1 está disponible.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Advertencias</translation>
    </message>
    <message>
        <source>What host and plug-in ask of each other</source>
        <translation>Lo que el host y el plugin se piden</translation>
    </message>
    <message>
        <source>What is reported about the use of the window</source>
        <translation>Lo que se notifica sobre el uso de la ventana</translation>
    </message>
    <message>
        <source>What the host's services report to the plug-in, the personal room too</source>
        <translation>Lo que los servicios del host notifican al plugin, también la sala personal</translation>
    </message>
    <message>
        <source>What the plug-in and the host library do inside</source>
        <translation>Lo que hacen el plugin y la biblioteca del host</translation>
    </message>
    <message>
        <source>Whole content</source>
        <translation>Contenido completo</translation>
    </message>
    <message>
        <source>Writes the events that are shown to a file</source>
        <translation>Escribe en un archivo los eventos que se muestran</translation>
    </message>
    <message>
        <source>You are %1 now, %2.</source>
        <translation>Ahora es usted %1 (%2).</translation>
    </message>
    <message>
        <source>You did not allow %1. Detect again if you trust it.</source>
        <translation>No autorizó %1. Busque de nuevo si confía en él.</translation>
    </message>
    <message>
        <source>You have no personal room any more.</source>
        <translation>Ya no tiene sala personal.</translation>
    </message>
    <message>
        <source>You have the newest version.</source>
        <translation>Tiene la versión más reciente.</translation>
    </message>
    <message>
        <source>Your personal room is %1 now.</source>
        <translation>Su sala personal es ahora %1.</translation>
    </message>
    <message>
        <source>Your site has news for Preferences. Press Close Preferences, then Preferences.</source>
        <translation>Su sitio tiene novedades para las preferencias. Pulse «Cerrar Preferencias» y después «Preferencias».</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>no se puede modificar su carpeta</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>Record to</source>
        <translation>Grabar en</translation>
    </message>
    <message>
        <source>Telemetr&amp;y</source>
        <translation>Te&amp;lemetría</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>Inspec&amp;tor</translation>
    </message>
    <message>
        <source>&amp;Try out</source>
        <translation>Pro&amp;bar</translation>
    </message>
    <message>
        <source>&amp;Meetings</source>
        <translation>&amp;Reuniones</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.</source>
        <translation>Los sitios de reuniones y Exchange se buscan en la red y en un entorno de pruebas de este equipo.</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are played by a sandbox on this computer.</source>
        <translation>Un entorno de pruebas de este equipo simula los sitios de reuniones y Exchange.</translation>
    </message>
    <message>
        <source>Records (*.jsonl)</source>
        <translation>Grabaciones (*.jsonl)</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiado: %1</translation>
    </message>
    <message>
        <source>May %1 be asked for your Exchange account?</source>
        <translation>¿Permitir que se consulte su cuenta de Exchange en %1?</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Exchange</translation>
    </message>
    <message>
        <source>&amp;Do not allow</source>
        <translation>&amp;No permitir</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Permitir</translation>
    </message>
    <message>
        <source>Detect again to enter another user name or password.</source>
        <translation>Busque de nuevo para introducir otro nombre de usuario u otra contraseña.</translation>
    </message>
    <message>
        <source>The search leads to %1. Allow it only if you know this server: your email address, and later your password, may be sent to it.</source>
        <translation>La búsqueda lleva a %1. Permítalo solo si conoce este servidor: se le puede enviar su correo electrónico y después su contraseña.</translation>
    </message>
    <message>
        <source>&amp;Guest</source>
        <translation>&amp;Invitado</translation>
    </message>
    <message>
        <source>&amp;Signed in</source>
        <translation>&amp;Sesión iniciada</translation>
    </message>
    <message>
        <source>Writes what happens to a file, for a report</source>
        <translation>Escribe en un archivo lo que ocurre, para un informe</translation>
    </message>
    <message>
        <source>Opens its page in the browser</source>
        <translation>Abre su página en el navegador</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Buscar &amp;actualizaciones</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Preferencias</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>Detener la &amp;grabación</translation>
    </message>
    <message>
        <source>&amp;Join by number</source>
        <translation>Unirse por &amp;número</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Cuenta</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>Get &amp;version %1</source>
        <translation>Obtener la &amp;versión %1</translation>
    </message>
    <message>
        <source>&amp;Close Preferences</source>
        <translation>C&amp;errar Preferencias</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. Unlock the keyring; they are saved then.</source>
        <translation>No se pueden guardar las contraseñas: el llavero está bloqueado. Se recordarán hasta que se cierre Brenn Mivra Meetings. Desbloquee el llavero; entonces se guardarán.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. Start or install one, such as GNOME Keyring; they are saved then.</source>
        <translation>No se pueden guardar las contraseñas: no hay ningún llavero. Se recordarán hasta que se cierre Brenn Mivra Meetings. Inicie o instale uno, como GNOME Keyring; entonces se guardarán.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings quits. Wait, or restart the keyring; they are saved then.</source>
        <translation>No se pueden guardar las contraseñas: el llavero no responde. Se recordarán hasta que se cierre Brenn Mivra Meetings. Espere o reinicie el llavero; entonces se guardarán.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. Make the folder writable; the next change saves them all.</source>
        <translation>No se pueden guardar los ajustes: %1 es de solo lectura. Se conservan hasta que se cierre Brenn Mivra Meetings. Permita la escritura en la carpeta; el próximo cambio los guardará todos.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. Free some space; the next change saves them all.</source>
        <translation>No se pueden guardar los ajustes: el disco está lleno. Se conservan hasta que se cierre Brenn Mivra Meetings. Libere espacio; el próximo cambio los guardará todos.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. Check the folder; the next change saves them all.</source>
        <translation>No se pueden guardar los ajustes en %1. Se conservan hasta que se cierre Brenn Mivra Meetings. Compruebe la carpeta; el próximo cambio los guardará todos.</translation>
    </message>
    <message>
        <source>Settings could not be read and were set aside as %1. They start anew.</source>
        <translation>Los ajustes no se pudieron leer y se apartaron como %1. Vuelven a sus valores iniciales.</translation>
    </message>
    <message>
        <source>Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept until Brenn Mivra Meetings quits. Move the file away, then start again.</source>
        <translation>No se pueden leer ni guardar los ajustes: %1 está dañado o pertenece a otra persona. Se conservan hasta que se cierre Brenn Mivra Meetings. Mueva el archivo a otro lugar y vuelva a iniciar.</translation>
    </message>
    <message>
        <source>Your next meetings:</source>
        <translation>Sus próximas reuniones:</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Reunión</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>Hoy, %1</translation>
    </message>
    <message>
        <source>Next meetings</source>
        <translation>Próximas reuniones</translation>
    </message>
    <message>
        <source>Asking for your next meetings.</source>
        <translation>Consultando sus próximas reuniones.</translation>
    </message>
    <message>
        <source>has started</source>
        <translation>ha comenzado</translation>
    </message>
    <message>
        <source>starts in %1 minutes</source>
        <translation>comienza en %1 minutos</translation>
    </message>
    <message>
        <source>starts in 1 minute</source>
        <translation>comienza en 1 minuto</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Act&amp;ualizar</translation>
    </message>
    <message>
        <source>Tomorrow, %1</source>
        <translation>Mañana, %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and addresses are not.</source>
        <translation>Grabado en %1. Adjúntelo a su informe; las contraseñas y los tokens se han sustituido, los nombres y las direcciones no.</translation>
    </message>
    <message>
        <source>Recording to %1. Do what goes wrong, then press Stop recording.</source>
        <translation>Grabando en %1. Repita lo que falla y después pulse «Detener la grabación».</translation>
    </message>
    <message>
        <source>Recording has ended: %1. What came before is in %2. Make room, then record again.</source>
        <translation>La grabación ha terminado: %1. Lo anterior está en %2. Libere espacio y grabe de nuevo.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Choose another place for the record.</source>
        <translation>No se puede escribir %1: %2. Elija otro lugar para la grabación.</translation>
    </message>
    <message>
        <source>The sandbox has ended.</source>
        <translation>El entorno de pruebas se ha cerrado.</translation>
    </message>
    <message>
        <source>The sandbox does not answer.</source>
        <translation>El entorno de pruebas no responde.</translation>
    </message>
    <message>
        <source>The sandbox is not running: kz-sandbox is not beside this program.</source>
        <translation>El entorno de pruebas no se está ejecutando: kz-sandbox no está junto a este programa.</translation>
    </message>
    <message>
        <source>The sandbox did not start: %1.</source>
        <translation>El entorno de pruebas no se inició: %1.</translation>
    </message>
    <message>
        <source>The sandbox plays nothing: the openssl program may be missing.</source>
        <translation>El entorno de pruebas no simula nada: quizá falte el programa openssl.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>Change site</source>
        <translation>Cambiar de sitio</translation>
    </message>
    <message>
        <source>&amp;Use it anyway</source>
        <translation>&amp;Usar de todos modos</translation>
    </message>
    <message>
        <source>&amp;Site of your meeting service:</source>
        <translation>&amp;Sitio de su servicio de reuniones:</translation>
    </message>
    <message>
        <source>&amp;Keep the old site</source>
        <translation>&amp;Mantener el sitio anterior</translation>
    </message>
    <message>
        <source>Asking the site.</source>
        <translation>Consultando el sitio.</translation>
    </message>
    <message>
        <source>Nothing is written, and nothing is kept.</source>
        <translation>No se escribe nada y no se conserva nada.</translation>
    </message>
    <message>
        <source>Telemetry records</source>
        <translation>Registros de telemetría</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Elección</translation>
    </message>
    <message>
        <source>Your choices in Preferences, without anything personal, are kept in %1. They stay on this computer.</source>
        <translation>Lo que elige en Preferencias, sin datos personales, se conserva en %1. No sale de este equipo.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Eliminar to&amp;do</translation>
    </message>
    <message>
        <source>&amp;Keep what I choose</source>
        <translation>Conservar lo &amp;que elijo</translation>
    </message>
    <message>
        <source>Nothing is written. What was kept before lies in %1.</source>
        <translation>No se escribe nada. Lo conservado antes está en %1.</translation>
    </message>
    <message>
        <source>Use t&amp;his site</source>
        <translation>&amp;Usar este sitio</translation>
    </message>
    <message>
        <source>Copies the selected address, user name or password</source>
        <translation>Copia la dirección, el nombre de usuario o la contraseña seleccionados</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>The sandbox is not running. While it runs, this page lists accounts and sites to try.</source>
        <translation>El entorno de pruebas no se está ejecutando. Cuando se ejecuta, esta página muestra cuentas y sitios para probar.</translation>
    </message>
    <message>
        <source>Sites, the meeting service to belong to:</source>
        <translation>Sitios (el servicio de reuniones al que pertenece):</translation>
    </message>
    <message>
        <source>Accounts, for Microsoft Outlook in Meetings:</source>
        <translation>Cuentas, para Microsoft Outlook en Reuniones:</translation>
    </message>
    <message>
        <source>All of these are played by a sandbox on this computer. Copy an address, open Preferences, choose Microsoft Outlook in Meetings, paste it and press Return.</source>
        <translation>Todo esto lo simula un entorno de pruebas de este equipo. Copie una dirección, abra Preferencias, elija Microsoft Outlook en Reuniones, péguela y pulse Intro.</translation>
    </message>
    <message>
        <source>Sites to try</source>
        <translation>Sitios para probar</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Accounts to try</source>
        <translation>Cuentas para probar</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Qué muestra</translation>
    </message>
    <message>
        <source>Exchange with a password. Any other password is refused, and the third one locks the account until the sandbox is started again</source>
        <translation>Exchange con contraseña. Cualquier otra se rechaza, y la tercera bloquea la cuenta hasta que se reinicie el entorno de pruebas</translation>
    </message>
    <message>
        <source>The account is locked from the start: no password is right</source>
        <translation>La cuenta está bloqueada desde el principio: ninguna contraseña es correcta</translation>
    </message>
    <message>
        <source>Office 365: sign in in the browser</source>
        <translation>Office 365: inicio de sesión en el navegador</translation>
    </message>
    <message>
        <source>Office 365 that takes two seconds longer to sign you in</source>
        <translation>Office 365 que tarda dos segundos más en iniciar la sesión</translation>
    </message>
    <message>
        <source>Office 365 whose sign-in ends after a minute: you sign in again</source>
        <translation>Office 365 cuya sesión termina al cabo de un minuto: vuelve a iniciar sesión</translation>
    </message>
    <message>
        <source>Office 365 that refuses every sign-in</source>
        <translation>Office 365 que rechaza cualquier inicio de sesión</translation>
    </message>
    <message>
        <source>Office 365 that does not respond after the sign-in</source>
        <translation>Office 365 que no responde después de iniciar la sesión</translation>
    </message>
    <message>
        <source>Office 365 that responds with an error (500) after the sign-in</source>
        <translation>Office 365 que responde con un error (500) después de iniciar la sesión</translation>
    </message>
    <message>
        <source>Office 365 that responds to the sign-in with a web page</source>
        <translation>Office 365 que responde al inicio de sesión con una página web</translation>
    </message>
    <message>
        <source>Office 365 that does not say how long the sign-in is valid</source>
        <translation>Office 365 que no indica cuánto dura el inicio de sesión</translation>
    </message>
    <message>
        <source>Redirects to onprem@corp.sandbox.example</source>
        <translation>Redirige a onprem@corp.sandbox.example</translation>
    </message>
    <message>
        <source>An unencrypted address leads to the server: you are asked first</source>
        <translation>Una dirección sin cifrar lleva al servidor: se le pregunta antes</translation>
    </message>
    <message>
        <source>Only a service record names the server</source>
        <translation>Solo un registro de servicio (SRV) indica el servidor</translation>
    </message>
    <message>
        <source>Responds after a second</source>
        <translation>Responde al cabo de un segundo</translation>
    </message>
    <message>
        <source>Never responds</source>
        <translation>No responde nunca</translation>
    </message>
    <message>
        <source>Responds slowly, byte by byte</source>
        <translation>Responde despacio, byte a byte</translation>
    </message>
    <message>
        <source>Always responds with an error (500)</source>
        <translation>Responde siempre con un error (500)</translation>
    </message>
    <message>
        <source>Has a certificate for another name</source>
        <translation>Tiene un certificado de otro nombre</translation>
    </message>
    <message>
        <source>Redirects a hundred times</source>
        <translation>Redirige cien veces</translation>
    </message>
    <message>
        <source>Requires a sign-in method that is not supported</source>
        <translation>Exige un método de inicio de sesión no admitido</translation>
    </message>
    <message>
        <source>Responds with XML that expands to gigabytes</source>
        <translation>Responde con XML que se expande a gigabytes</translation>
    </message>
    <message>
        <source>Responds with a web page</source>
        <translation>Responde con una página web</translation>
    </message>
    <message>
        <source>Has a web site but no Exchange</source>
        <translation>Tiene un sitio web, pero no Exchange</translation>
    </message>
    <message>
        <source>Works and offers version 9.1.0</source>
        <translation>Funciona y ofrece la versión 9.1.0</translation>
    </message>
    <message>
        <source>Works; there is no newer version</source>
        <translation>Funciona; no hay ninguna versión más reciente</translation>
    </message>
    <message>
        <source>Works, but each response takes a second</source>
        <translation>Funciona, pero cada respuesta tarda un segundo</translation>
    </message>
    <message>
        <source>Responds to every request with a web page</source>
        <translation>Responde a cada petición con una página web</translation>
    </message>
</context>
</TS>
