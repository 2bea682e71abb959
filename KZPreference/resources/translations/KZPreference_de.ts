<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KZPreference</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Besprechungen</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Video devices</source>
        <translation>Videogeräte</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings</source>
        <translation>Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Start Brenn Mivra Meetings when my computer starts</source>
        <translation>Brenn Mivra Meetings beim Start des Computers öffnen</translation>
    </message>
    <message>
        <source>Schedule or start Mivra meetings from Microsoft Outlook</source>
        <translation>Mivra-Besprechungen in Microsoft Outlook planen oder starten</translation>
    </message>
    <message>
        <source>Your setting changes will take effect after you restart Microsoft Outlook.</source>
        <translation>Die Änderungen werden wirksam, sobald Sie Microsoft Outlook neu starten.</translation>
    </message>
    <message>
        <source>Full name:</source>
        <translation>Vollständiger Name:</translation>
    </message>
    <message>
        <source>Mivra site URL:</source>
        <translation>URL der Mivra-Site:</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>E-Mail-Adresse:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Your name:</source>
        <translation>Ihr Name:</translation>
    </message>
    <message>
        <source>Your email address:</source>
        <translation>Ihre E-Mail-Adresse:</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>Ungültige E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Personal Room:</source>
        <translation>Persönlicher Raum:</translation>
    </message>
    <message>
        <source>Video address:</source>
        <translation>Videoadresse:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Number of days to show in meetings list:</source>
        <translation>Anzahl der Tage in der Besprechungsliste:</translation>
    </message>
    <message>
        <source>Calendar integration</source>
        <translation>Kalenderintegration</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
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
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>DOMAIN\username or Email</source>
        <translation>DOMÄNE\Name oder E-Mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Invalid email or password</source>
        <translation>E-Mail-Adresse oder Passwort ungültig</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>Erfolgreich übernommen</translation>
    </message>
    <message>
        <source>Meeting notifications</source>
        <translation>Besprechungsbenachrichtigungen</translation>
    </message>
    <message>
        <source>minutes before scheduled start time.</source>
        <translation>Minuten vor dem geplanten Beginn.</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>minutes after Snooze.</source>
        <translation>Minuten nach der ersten Erinnerung.</translation>
    </message>
    <message>
        <source>Upcoming Meeting card on dashboard</source>
        <translation>Karte der nächsten Besprechung in der Übersicht</translation>
    </message>
    <message>
        <source>Automatically discover nearby devices</source>
        <translation>Geräte in der Nähe automatisch erkennen</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Sign in in your browser. At the end it shows a code; enter it here to continue.</source>
        <translation>Melden Sie sich in Ihrem Browser an. Am Ende zeigt er einen Code; geben Sie ihn hier ein, um fortzufahren.</translation>
    </message>
    <message>
        <source>Waiting for you to sign in with your browser. This window closes by itself when you are done.</source>
        <translation>Bitte melden Sie sich in Ihrem Browser an. Dieses Fenster schließt sich danach von selbst.</translation>
    </message>
    <message>
        <source>If no browser opened, open this &amp;address yourself:</source>
        <translation>Hat sich kein Browser geöffnet, öffnen Sie diese &amp;Adresse selbst:</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Code:</translation>
    </message>
    <message>
        <source>Open the &amp;browser again</source>
        <translation>&amp;Browser erneut öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>This is not the expected answer.</source>
        <translation>Das ist nicht die erwartete Antwort.</translation>
    </message>
    <message>
        <source>You are signed in</source>
        <translation>Sie sind angemeldet</translation>
    </message>
    <message>
        <source>You can close this page.</source>
        <translation>Sie können diese Seite schließen.</translation>
    </message>
    <message>
        <source>Sign-in was refused</source>
        <translation>Die Anmeldung wurde abgelehnt</translation>
    </message>
    <message>
        <source>Sign-in did not work</source>
        <translation>Die Anmeldung hat nicht geklappt</translation>
    </message>
    <message>
        <source>To try again, go back to Preferences.</source>
        <translation>Kehren Sie zu den Einstellungen zurück, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>Sign-in is not finished yet</source>
        <translation>Die Anmeldung ist noch nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Preferences shows whether it worked.</source>
        <translation>In den Einstellungen sehen Sie, ob sie geklappt hat.</translation>
    </message>
    <message>
        <source>Copy personal room</source>
        <translation>Persönlichen Raum kopieren</translation>
    </message>
    <message>
        <source>Copy video address</source>
        <translation>Videoadresse kopieren</translation>
    </message>
    <message>
        <source>Look up account</source>
        <translation>Konto suchen</translation>
    </message>
    <message>
        <source>Looking up the account…</source>
        <translation>Konto wird gesucht …</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Konto wird übernommen …</translation>
    </message>
    <message>
        <source>Return looks up the account.</source>
        <translation>Die Eingabetaste sucht das Konto.</translation>
    </message>
    <message>
        <source>Return applies the account.</source>
        <translation>Die Eingabetaste übernimmt das Konto.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels, Ctrl+Tab leaves the fields.</source>
        <translation>Die Eingabetaste speichert, Esc bricht ab, Strg+Tab verlässt die Felder.</translation>
    </message>
    <message>
        <source>Applied failed</source>
        <translation>Übernehmen fehlgeschlagen</translation>
    </message>
</context>
</TS>
