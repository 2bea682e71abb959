<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>KZPreference</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Reuniones</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Video devices</source>
        <translation>Dispositivos de vídeo</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings</source>
        <translation>Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Start Brenn Mivra Meetings when my computer starts</source>
        <translation>Abrir Brenn Mivra Meetings al iniciar el equipo</translation>
    </message>
    <message>
        <source>Schedule or start Mivra meetings from Microsoft Outlook</source>
        <translation>Programar o iniciar reuniones de Mivra desde Microsoft Outlook</translation>
    </message>
    <message>
        <source>Your setting changes will take effect after you restart Microsoft Outlook.</source>
        <translation>Los cambios surtirán efecto cuando reinicie Microsoft Outlook.</translation>
    </message>
    <message>
        <source>Full name:</source>
        <translation>Nombre completo:</translation>
    </message>
    <message>
        <source>Mivra site URL:</source>
        <translation>URL del sitio de Mivra:</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>Correo electrónico:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Your name:</source>
        <translation>Su nombre:</translation>
    </message>
    <message>
        <source>Your email address:</source>
        <translation>Su correo electrónico:</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>Correo electrónico no válido</translation>
    </message>
    <message>
        <source>Personal Room:</source>
        <translation>Su sala personal:</translation>
    </message>
    <message>
        <source>Video address:</source>
        <translation>Dirección de vídeo:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Number of days to show in meetings list:</source>
        <translation>Días que se muestran en la lista de reuniones:</translation>
    </message>
    <message>
        <source>Calendar integration</source>
        <translation>Integración del calendario</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Mivra</source>
        <translation>Mivra</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google</translation>
    </message>
    <message>
        <source>Microsoft Outlook</source>
        <translation>Microsoft Outlook</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>Correo electrónico:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>DOMAIN\username or Email</source>
        <translation>DOMINIO\usuario o correo</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Invalid email or password</source>
        <translation>Correo electrónico o contraseña no válidos</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>Aplicado correctamente</translation>
    </message>
    <message>
        <source>Meeting notifications</source>
        <translation>Notificaciones de reuniones</translation>
    </message>
    <message>
        <source>minutes before scheduled start time.</source>
        <translation>minutos antes de la hora de inicio prevista.</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>Posponer</translation>
    </message>
    <message>
        <source>minutes after Snooze.</source>
        <translation>minutos después de posponer.</translation>
    </message>
    <message>
        <source>Upcoming Meeting card on dashboard</source>
        <translation>Tarjeta de la próxima reunión en el panel</translation>
    </message>
    <message>
        <source>Automatically discover nearby devices</source>
        <translation>Detectar automáticamente los dispositivos cercanos</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Sign in in your browser. At the end it shows a code; enter it here to continue.</source>
        <translation>Inicie sesión en el navegador. Al final, el navegador mostrará un código; introdúzcalo aquí para continuar.</translation>
    </message>
    <message>
        <source>Waiting for you to sign in with your browser. This window closes by itself when you are done.</source>
        <translation>Esperando a que inicie sesión en el navegador. Esta ventana se cerrará sola cuando termine.</translation>
    </message>
    <message>
        <source>If no browser opened, open this &amp;address yourself:</source>
        <translation>Si no se abrió ningún navegador, abra esta &amp;dirección manualmente:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>Códi&amp;go:</translation>
    </message>
    <message>
        <source>Open the &amp;browser again</source>
        <translation>Abrir de nuevo el &amp;navegador</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>Con&amp;tinuar</translation>
    </message>
    <message>
        <source>This is not the expected answer.</source>
        <translation>Esta no es la respuesta esperada.</translation>
    </message>
    <message>
        <source>You are signed in</source>
        <translation>Ha iniciado sesión</translation>
    </message>
    <message>
        <source>You can close this page.</source>
        <translation>Puede cerrar esta página.</translation>
    </message>
    <message>
        <source>Sign-in was refused</source>
        <translation>Se ha rechazado el inicio de sesión</translation>
    </message>
    <message>
        <source>Sign-in did not work</source>
        <translation>No se ha podido iniciar sesión</translation>
    </message>
    <message>
        <source>To try again, go back to Preferences.</source>
        <translation>Para volver a intentarlo, regrese a Preferencias.</translation>
    </message>
    <message>
        <source>Sign-in is not finished yet</source>
        <translation>El inicio de sesión aún no ha terminado</translation>
    </message>
    <message>
        <source>Preferences shows whether it worked.</source>
        <translation>En Preferencias verá si se ha completado.</translation>
    </message>
    <message>
        <source>Copy personal room</source>
        <translation>Copiar la sala personal</translation>
    </message>
    <message>
        <source>Copy video address</source>
        <translation>Copiar la dirección de vídeo</translation>
    </message>
    <message>
        <source>Look up account</source>
        <translation>Buscar la cuenta</translation>
    </message>
    <message>
        <source>Looking up the account…</source>
        <translation>Buscando la cuenta…</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando la cuenta…</translation>
    </message>
    <message>
        <source>Return looks up the account.</source>
        <translation>La tecla Intro busca la cuenta.</translation>
    </message>
    <message>
        <source>Return applies the account.</source>
        <translation>La tecla Intro aplica la cuenta.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels, Ctrl+Tab leaves the fields.</source>
        <translation>Intro guarda, Esc cancela y Ctrl+Tab sale de los campos.</translation>
    </message>
    <message>
        <source>Applied failed</source>
        <translation>No se pudo aplicar</translation>
    </message>
</context>
</TS>
