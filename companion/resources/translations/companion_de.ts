<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>companion</name>
    <message>
        <source>"%1" is no name of a site. Enter one such as meetings.example.com.</source>
        <translation>„%1“ ist kein Name einer Site. Geben Sie einen ein, zum Beispiel meetings.example.com.</translation>
    </message>
    <message>
        <source>%1 Start the companion again.</source>
        <translation>%1 Starten Sie den Companion neu.</translation>
    </message>
    <message>
        <source>%1 asks for a user name and password.</source>
        <translation>%1 verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2. Make its folder writable and choose again.</source>
        <translation>%1 kann nicht geändert werden: %2. Machen Sie den Ordner beschreibbar und wählen Sie erneut.</translation>
    </message>
    <message>
        <source>%1 cannot be deleted. Make its folder writable and try again.</source>
        <translation>%1 kann nicht gelöscht werden. Machen Sie den Ordner beschreibbar und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 cannot be reached. Check your network connection and try again.</source>
        <translation>%1 ist nicht erreichbar. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 did not accept your sign-in. Detect the account again to sign in anew.</source>
        <translation>%1 hat Ihre Anmeldung nicht akzeptiert. Suchen Sie das Konto erneut, um sich neu anzumelden.</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 hat nicht rechtzeitig geantwortet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 does not accept a user name and password (Basic), the only way supported. Ask your administrator to allow it.</source>
        <translation>%1 akzeptiert keine Anmeldung mit Benutzername und Passwort (Basic); nur diese wird unterstützt. Bitten Sie Ihre Administration, sie zuzulassen.</translation>
    </message>
    <message>
        <source>%1 does not have what was asked of it. Check its name, or tell your administrator.</source>
        <translation>%1 hat das Gesuchte nicht. Prüfen Sie den Namen oder wenden Sie sich an Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 does not let you in. Ask your administrator for access.</source>
        <translation>%1 lässt Sie nicht zu. Bitten Sie Ihre Administration um Zugang.</translation>
    </message>
    <message>
        <source>%1 does not offer the encryption that is needed. Ask your administrator to mend it.</source>
        <translation>%1 bietet nicht die nötige Verschlüsselung an. Bitten Sie Ihre Administration, das zu beheben.</translation>
    </message>
    <message>
        <source>%1 gave no usable answer. Check its name, or tell your administrator.</source>
        <translation>%1 hat keine brauchbare Antwort gegeben. Prüfen Sie den Namen oder wenden Sie sich an Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 has a problem of its own. Try again later, or tell your administrator.</source>
        <translation>%1 hat selbst ein Problem. Versuchen Sie es später erneut oder wenden Sie sich an Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 has no Exchange service. Check the address, or ask your administrator.</source>
        <translation>%1 hat keinen Exchange-Dienst. Prüfen Sie die Adresse oder fragen Sie Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 is an Office 365 account.</source>
        <translation>%1 ist ein Office-365-Konto.</translation>
    </message>
    <message>
        <source>%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or start the companion with --network.</source>
        <translation>%1 liegt außerhalb der Sandbox und wurde nicht abgefragt. Verwenden Sie ein Konto oder eine Site der Seite „Ausprobieren“ oder starten Sie den Companion mit --network.</translation>
    </message>
    <message>
        <source>%1 keeps leading to other addresses. Tell your administrator.</source>
        <translation>%1 leitet immer wieder auf andere Adressen weiter. Wenden Sie sich an Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your administrator.</source>
        <translation>%1 führt zu einer unverschlüsselten oder anderweitig unsicheren Adresse, die nicht verwendet wird. Wenden Sie sich an Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 names no page for joining by number. Ask your administrator for its address.</source>
        <translation>%1 nennt keine Seite zur Teilnahme per Nummer. Fragen Sie Ihre Administration nach der Adresse.</translation>
    </message>
    <message>
        <source>%1 names no page of meeting settings. Ask your administrator for its address.</source>
        <translation>%1 nennt keine Seite für Besprechungseinstellungen. Fragen Sie Ihre Administration nach der Adresse.</translation>
    </message>
    <message>
        <source>%1 needs your user name and password. Detect the account again and enter them.</source>
        <translation>%1 benötigt Ihren Benutzernamen und Ihr Passwort. Suchen Sie das Konto erneut und geben Sie beides ein.</translation>
    </message>
    <message>
        <source>%1 refused the user name or the password. Detect the account again.</source>
        <translation>%1 hat den Benutzernamen oder das Passwort abgelehnt. Suchen Sie das Konto erneut.</translation>
    </message>
    <message>
        <source>%1 says: "%2" Check the address, or ask your administrator.</source>
        <translation>%1 meldet: „%2“ Prüfen Sie die Adresse oder fragen Sie Ihre Administration.</translation>
    </message>
    <message>
        <source>%1 was not found. Check its name and your network connection.</source>
        <translation>%1 wurde nicht gefunden. Prüfen Sie den Namen und Ihre Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>A check for updates is already running.</source>
        <translation>Es wird bereits nach Updates gesucht.</translation>
    </message>
    <message>
        <source>A user name with a colon cannot be sent to %1. Use your email address.</source>
        <translation>Ein Benutzername mit Doppelpunkt kann nicht an %1 gesendet werden. Verwenden Sie Ihre E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Asking %1.</source>
        <translation>%1 wird abgefragt.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings does not start after login any more.</source>
        <translation>Brenn Mivra Meetings startet nicht mehr nach der Anmeldung.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings starts after your next login.</source>
        <translation>Brenn Mivra Meetings startet nach Ihrer nächsten Anmeldung.</translation>
    </message>
    <message>
        <source>Challenge</source>
        <translation>Aufforderung</translation>
    </message>
    <message>
        <source>Challenges, their answers, and addresses that were opened</source>
        <translation>Aufforderungen, ihre Antworten und geöffnete Adressen</translation>
    </message>
    <message>
        <source>Checking for updates.</source>
        <translation>Es wird nach Updates gesucht.</translation>
    </message>
    <message>
        <source>Choose a row to see its whole content.</source>
        <translation>Wählen Sie eine Zeile, um ihren ganzen Inhalt zu sehen.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Command to host</source>
        <translation>Befehl an den Host</translation>
    </message>
    <message>
        <source>Command to plug-in</source>
        <translation>Befehl ans Plug-in</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>Fo&amp;rtsetzen</translation>
    </message>
    <message>
        <source>Co&amp;ntinue (%1 new)</source>
        <translation>Fo&amp;rtsetzen (%1 neu)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>Kopiert die ausgewählten Zeilen oder alle angezeigten</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Events (*.jsonl)</source>
        <translation>Ereignisse (*.jsonl)</translation>
    </message>
    <message>
        <source>Exchange did not accept the saved user name and password. Detect the account again in Preferences, Meetings.</source>
        <translation>Exchange hat den gespeicherten Benutzernamen und das Passwort nicht akzeptiert. Suchen Sie das Konto in den Einstellungen unter „Besprechungen“ erneut.</translation>
    </message>
    <message>
        <source>Exchange did not accept this user name and password. Check them, then detect the account again.</source>
        <translation>Exchange hat diesen Benutzernamen und dieses Passwort nicht akzeptiert. Prüfen Sie beides und suchen Sie dann das Konto erneut.</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>Ereignisse exportieren</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>Filter by name or content</source>
        <translation>Nach Name oder Inhalt filtern</translation>
    </message>
    <message>
        <source>Forgets all events</source>
        <translation>Verwirft alle Ereignisse</translation>
    </message>
    <message>
        <source>Keeps the list as it is while you read</source>
        <translation>Hält die Liste an, während Sie lesen</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Meetings can be scheduled from Microsoft Outlook once it is started again.</source>
        <translation>Sobald Microsoft Outlook neu gestartet ist, können dort Besprechungen geplant werden.</translation>
    </message>
    <message>
        <source>Meetings come from Google now.</source>
        <translation>Besprechungen kommen jetzt von Google.</translation>
    </message>
    <message>
        <source>Meetings come from Microsoft Outlook now.</source>
        <translation>Besprechungen kommen jetzt aus Microsoft Outlook.</translation>
    </message>
    <message>
        <source>Meetings come from Mivra now.</source>
        <translation>Besprechungen kommen jetzt von Mivra.</translation>
    </message>
    <message>
        <source>Meetings come from no calendar now.</source>
        <translation>Besprechungen kommen jetzt aus keinem Kalender mehr.</translation>
    </message>
    <message>
        <source>Microsoft Outlook schedules no meetings any more once it is started again.</source>
        <translation>Sobald Microsoft Outlook neu gestartet ist, können dort keine Besprechungen mehr geplant werden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Nearby video devices are looked for. This companion finds none.</source>
        <translation>Videogeräte in der Nähe werden gesucht. Dieser Companion findet keine.</translation>
    </message>
    <message>
        <source>Nearby video devices are not looked for any more.</source>
        <translation>Videogeräte in der Nähe werden nicht mehr gesucht.</translation>
    </message>
    <message>
        <source>To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email address.</source>
        <translation>Um Ihre nächsten Besprechungen zu sehen, wählen Sie in den Einstellungen unter „Besprechungen“ Microsoft Outlook und geben Sie Ihre E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>Kein Browser hat %1 geöffnet. Öffnen Sie die Adresse selbst.</translation>
    </message>
    <message>
        <source>No meetings in the days that you chose.</source>
        <translation>Keine Besprechungen in den gewählten Tagen.</translation>
    </message>
    <message>
        <source>No site is known that could have updates. Choose one in Preferences, Account.</source>
        <translation>Es ist keine Site bekannt, die Updates haben könnte. Wählen Sie eine in den Einstellungen unter „Konto“.</translation>
    </message>
    <message>
        <source>No site is known. Choose one in Preferences, Account.</source>
        <translation>Es ist keine Site bekannt. Wählen Sie eine in den Einstellungen unter „Konto“.</translation>
    </message>
    <message>
        <source>Nobody is signed in as %1. Detect the account again to sign in.</source>
        <translation>Niemand ist als %1 angemeldet. Suchen Sie das Konto erneut, um sich anzumelden.</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Paus&amp;e</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>Personal room</source>
        <translation>Persönlicher Raum</translation>
    </message>
    <message>
        <source>Settings that were written, what changed in them, and keychain items</source>
        <translation>Geschriebene Einstellungen, ihre Änderungen und Schlüsselbundeinträge</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Store write</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Telemetry</source>
        <translation>Telemetrie</translation>
    </message>
    <message>
        <source>Telemetry cannot be kept in %1: %2. Free some space, or switch it off.</source>
        <translation>Telemetrie kann nicht in %1 aufbewahrt werden: %2. Schaffen Sie Platz oder schalten Sie sie aus.</translation>
    </message>
    <message>
        <source>The certificate of %1 belongs to another name. Ask your administrator to mend it.</source>
        <translation>Das Zertifikat von %1 gilt für einen anderen Namen. Bitten Sie Ihre Administration, das zu beheben.</translation>
    </message>
    <message>
        <source>The certificate of %1 has expired. Check the date of this computer, or ask your administrator to renew it.</source>
        <translation>Das Zertifikat von %1 ist abgelaufen. Prüfen Sie das Datum dieses Computers, oder bitten Sie Ihre Administration, es zu erneuern.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid yet. Check the date of this computer.</source>
        <translation>Das Zertifikat von %1 ist noch nicht gültig. Prüfen Sie das Datum dieses Computers.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted. Ask your administrator before you go on.</source>
        <translation>Dem Zertifikat von %1 wird nicht vertraut. Fragen Sie Ihre Administration, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>The events are copied, without passwords and tokens.</source>
        <translation>Die Ereignisse sind kopiert, ohne Passwörter und Token.</translation>
    </message>
    <message>
        <source>The events are in %1, without passwords and tokens.</source>
        <translation>Die Ereignisse sind in %1, ohne Passwörter und Token.</translation>
    </message>
    <message>
        <source>The events could not be written to %1 (%2). Choose another folder.</source>
        <translation>Die Ereignisse konnten nicht in %1 geschrieben werden (%2). Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. Choose it in Preferences, Meetings.</source>
        <translation>Die Besprechungen Ihres Kalenders stehen hier nicht: Dieser Companion liest nur Microsoft Outlook. Wählen Sie es in den Einstellungen unter „Besprechungen“.</translation>
    </message>
    <message>
        <source>The sandbox is still starting. Try again in a moment.</source>
        <translation>Die Sandbox startet noch. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The search for an Exchange service was given up.</source>
        <translation>Die Suche nach einem Exchange-Dienst wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The sign-in of %1 cannot be renewed now. Refresh later.</source>
        <translation>Die Anmeldung von %1 kann gerade nicht erneuert werden. Aktualisieren Sie später.</translation>
    </message>
    <message>
        <source>The sign-in of %1 could not be renewed. Detect the account again to sign in.</source>
        <translation>Die Anmeldung von %1 konnte nicht erneuert werden. Suchen Sie das Konto erneut, um sich anzumelden.</translation>
    </message>
    <message>
        <source>The sign-in of %1 was not renewed in time. Refresh, or detect the account again.</source>
        <translation>Die Anmeldung von %1 wurde nicht rechtzeitig erneuert. Aktualisieren Sie oder suchen Sie das Konto erneut.</translation>
    </message>
    <message>
        <source>The site has changed meanwhile. Check for updates again.</source>
        <translation>Die Site hat inzwischen gewechselt. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>The site is %1 now.</source>
        <translation>Die Site ist jetzt %1.</translation>
    </message>
    <message>
        <source>The site is %1 now. It has not answered yet.</source>
        <translation>Die Site ist jetzt %1. Sie hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>The warning window</source>
        <translation>Das Warnfenster</translation>
    </message>
    <message>
        <source>This email address has no usable domain. Check it for typing errors.</source>
        <translation>Diese E-Mail-Adresse hat keine brauchbare Domain. Prüfen Sie sie auf Tippfehler.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Trace (error)</source>
        <translation>Trace (Fehler)</translation>
    </message>
    <message>
        <source>Trace (warning)</source>
        <translation>Trace (Warnung)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Version %1 is available.</source>
        <translation>Version %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>What host and plug-in ask of each other</source>
        <translation>Was Host und Plug-in voneinander verlangen</translation>
    </message>
    <message>
        <source>What is reported about the use of the window</source>
        <translation>Was über die Benutzung des Fensters gemeldet wird</translation>
    </message>
    <message>
        <source>What the host's services report to the plug-in, the personal room too</source>
        <translation>Was die Dienste des Hosts dem Plug-in melden, auch der persönliche Raum</translation>
    </message>
    <message>
        <source>What the plug-in and the host library do inside</source>
        <translation>Was in Plug-in und Host-Bibliothek geschieht</translation>
    </message>
    <message>
        <source>Whole content</source>
        <translation>Ganzer Inhalt</translation>
    </message>
    <message>
        <source>Writes the events that are shown to a file</source>
        <translation>Schreibt die angezeigten Ereignisse in eine Datei</translation>
    </message>
    <message>
        <source>You are %1 now, %2.</source>
        <translation>Sie sind jetzt %1, %2.</translation>
    </message>
    <message>
        <source>You did not allow %1. Detect again if you trust it.</source>
        <translation>Sie haben %1 nicht zugelassen. Suchen Sie erneut, wenn Sie ihm vertrauen.</translation>
    </message>
    <message>
        <source>You have no personal room any more.</source>
        <translation>Sie haben keinen persönlichen Raum mehr.</translation>
    </message>
    <message>
        <source>You have the newest version.</source>
        <translation>Sie haben die neueste Version.</translation>
    </message>
    <message>
        <source>Your personal room is %1 now.</source>
        <translation>Ihr persönlicher Raum ist jetzt %1.</translation>
    </message>
    <message>
        <source>Your site has news for Preferences. Press Close Preferences, then Preferences.</source>
        <translation>Ihre Site hat Neues für die Einstellungen. Drücken Sie „Einstellungen schließen“, dann „Einstellungen“.</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>der Ordner kann nicht geändert werden</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Record to</source>
        <translation>Aufzeichnen in</translation>
    </message>
    <message>
        <source>Telemetr&amp;y</source>
        <translation>&amp;Telemetrie</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>&amp;Inspektor</translation>
    </message>
    <message>
        <source>&amp;Try out</source>
        <translation>Aus&amp;probieren</translation>
    </message>
    <message>
        <source>&amp;Meetings</source>
        <translation>&amp;Besprechungen</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.</source>
        <translation>Sites und Exchange werden im Netzwerk und in einer Sandbox auf diesem Computer gesucht.</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are played by a sandbox on this computer.</source>
        <translation>Sites und Exchange simuliert eine Sandbox auf diesem Computer.</translation>
    </message>
    <message>
        <source>Records (*.jsonl)</source>
        <translation>Aufzeichnungen (*.jsonl)</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>May %1 be asked for your Exchange account?</source>
        <translation>Darf %1 nach Ihrem Exchange-Konto gefragt werden?</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Exchange</translation>
    </message>
    <message>
        <source>&amp;Do not allow</source>
        <translation>&amp;Nicht zulassen</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Zulassen</translation>
    </message>
    <message>
        <source>Detect again to enter another user name or password.</source>
        <translation>Suchen Sie erneut, um einen anderen Benutzernamen oder ein anderes Passwort einzugeben.</translation>
    </message>
    <message>
        <source>The search leads to %1. Allow it only if you know this server: your email address, and later your password, may be sent to it.</source>
        <translation>Die Suche führt zu %1. Lassen Sie das nur zu, wenn Sie diesen Server kennen: Ihre E-Mail-Adresse und später Ihr Passwort können an ihn gesendet werden.</translation>
    </message>
    <message>
        <source>&amp;Guest</source>
        <translation>&amp;Gast</translation>
    </message>
    <message>
        <source>&amp;Signed in</source>
        <translation>Ange&amp;meldet</translation>
    </message>
    <message>
        <source>Writes what happens to a file, for a report</source>
        <translation>Schreibt für eine Fehlermeldung in eine Datei, was geschieht</translation>
    </message>
    <message>
        <source>Opens its page in the browser</source>
        <translation>Öffnet ihre Seite im Browser</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>&amp;Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>&amp;Join by number</source>
        <translation>Per &amp;Nummer teilnehmen</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Aufzeichnen</translation>
    </message>
    <message>
        <source>Get &amp;version %1</source>
        <translation>&amp;Version %1 holen</translation>
    </message>
    <message>
        <source>&amp;Close Preferences</source>
        <translation>Einstellungen &amp;schließen</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. Unlock the keyring; they are saved then.</source>
        <translation>Passwörter können nicht aufbewahrt werden: Der Schlüsselbund ist gesperrt. Bis Brenn Mivra Meetings beendet wird, bleiben sie bekannt. Entsperren Sie den Schlüsselbund; dann werden sie gespeichert.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. Start or install one, such as GNOME Keyring; they are saved then.</source>
        <translation>Passwörter können nicht aufbewahrt werden: Es gibt keinen Schlüsselbund. Bis Brenn Mivra Meetings beendet wird, bleiben sie bekannt. Starten oder installieren Sie einen, etwa GNOME Keyring; dann werden sie gespeichert.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings quits. Wait, or restart the keyring; they are saved then.</source>
        <translation>Passwörter können nicht aufbewahrt werden: Der Schlüsselbund antwortet nicht. Bis Brenn Mivra Meetings beendet wird, bleiben sie bekannt. Warten Sie, oder starten Sie den Schlüsselbund neu; dann werden sie gespeichert.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. Make the folder writable; the next change saves them all.</source>
        <translation>Einstellungen können nicht gespeichert werden: %1 ist schreibgeschützt. Bis Brenn Mivra Meetings beendet wird, gelten sie weiter. Machen Sie den Ordner beschreibbar; die nächste Änderung speichert alle.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. Free some space; the next change saves them all.</source>
        <translation>Einstellungen können nicht gespeichert werden: Der Datenträger ist voll. Bis Brenn Mivra Meetings beendet wird, gelten sie weiter. Schaffen Sie Platz; die nächste Änderung speichert alle.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. Check the folder; the next change saves them all.</source>
        <translation>Einstellungen können nicht in %1 gespeichert werden. Bis Brenn Mivra Meetings beendet wird, gelten sie weiter. Prüfen Sie den Ordner; die nächste Änderung speichert alle.</translation>
    </message>
    <message>
        <source>Settings could not be read and were set aside as %1. They start anew.</source>
        <translation>Die Einstellungen waren nicht lesbar und wurden als %1 beiseitegelegt. Es gelten wieder die Standardwerte.</translation>
    </message>
    <message>
        <source>Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept until Brenn Mivra Meetings quits. Move the file away, then start again.</source>
        <translation>Einstellungen können nicht gelesen oder gespeichert werden: %1 ist beschädigt oder gehört jemand anderem. Bis Brenn Mivra Meetings beendet wird, gelten sie weiter. Verschieben Sie die Datei und starten Sie dann neu.</translation>
    </message>
    <message>
        <source>Your next meetings:</source>
        <translation>Ihre nächsten Besprechungen:</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Besprechung</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>Heute, %1</translation>
    </message>
    <message>
        <source>Next meetings</source>
        <translation>Nächste Besprechungen</translation>
    </message>
    <message>
        <source>Asking for your next meetings.</source>
        <translation>Ihre nächsten Besprechungen werden abgefragt.</translation>
    </message>
    <message>
        <source>has started</source>
        <translation>hat begonnen</translation>
    </message>
    <message>
        <source>starts in %1 minutes</source>
        <translation>beginnt in %1 Minuten</translation>
    </message>
    <message>
        <source>starts in 1 minute</source>
        <translation>beginnt in 1 Minute</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Aktua&amp;lisieren</translation>
    </message>
    <message>
        <source>Tomorrow, %1</source>
        <translation>Morgen, %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and addresses are not.</source>
        <translation>In %1 aufgezeichnet. Hängen Sie die Datei an Ihre Fehlermeldung; Passwörter und Token sind ersetzt, Namen und Adressen nicht.</translation>
    </message>
    <message>
        <source>Recording to %1. Do what goes wrong, then press Stop recording.</source>
        <translation>Es wird in %1 aufgezeichnet. Wiederholen Sie den Fehler und drücken Sie dann „Aufzeichnung beenden“.</translation>
    </message>
    <message>
        <source>Recording has ended: %1. What came before is in %2. Make room, then record again.</source>
        <translation>Die Aufzeichnung ist beendet: %1. Was davor kam, ist in %2. Schaffen Sie Platz und zeichnen Sie erneut auf.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Choose another place for the record.</source>
        <translation>%1 kann nicht geschrieben werden: %2. Wählen Sie einen anderen Ort für die Aufzeichnung.</translation>
    </message>
    <message>
        <source>The sandbox has ended.</source>
        <translation>Die Sandbox wurde beendet.</translation>
    </message>
    <message>
        <source>The sandbox does not answer.</source>
        <translation>Die Sandbox antwortet nicht.</translation>
    </message>
    <message>
        <source>The sandbox is not running: kz-sandbox is not beside this program.</source>
        <translation>Die Sandbox läuft nicht: kz-sandbox liegt nicht neben diesem Programm.</translation>
    </message>
    <message>
        <source>The sandbox did not start: %1.</source>
        <translation>Die Sandbox ist nicht gestartet: %1.</translation>
    </message>
    <message>
        <source>The sandbox plays nothing: the openssl program may be missing.</source>
        <translation>Die Sandbox simuliert nichts: Vielleicht fehlt das Programm openssl.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Än&amp;dern</translation>
    </message>
    <message>
        <source>Change site</source>
        <translation>Site ändern</translation>
    </message>
    <message>
        <source>&amp;Use it anyway</source>
        <translation>&amp;Trotzdem verwenden</translation>
    </message>
    <message>
        <source>&amp;Site of your meeting service:</source>
        <translation>&amp;Site Ihres Besprechungsdienstes:</translation>
    </message>
    <message>
        <source>&amp;Keep the old site</source>
        <translation>Alte Site &amp;behalten</translation>
    </message>
    <message>
        <source>Asking the site.</source>
        <translation>Die Site wird abgefragt.</translation>
    </message>
    <message>
        <source>Nothing is written, and nothing is kept.</source>
        <translation>Es wird nichts geschrieben und es ist nichts aufbewahrt.</translation>
    </message>
    <message>
        <source>Telemetry records</source>
        <translation>Telemetrieeinträge</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Your choices in Preferences, without anything personal, are kept in %1. They stay on this computer.</source>
        <translation>Was Sie in den Einstellungen wählen, wird ohne persönliche Angaben in %1 aufbewahrt. Es bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Alles &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Keep what I choose</source>
        <translation>Aufbewahren, &amp;was ich wähle</translation>
    </message>
    <message>
        <source>Nothing is written. What was kept before lies in %1.</source>
        <translation>Es wird nichts geschrieben. Was früher aufbewahrt wurde, liegt in %1.</translation>
    </message>
    <message>
        <source>Use t&amp;his site</source>
        <translation>&amp;Diese Site verwenden</translation>
    </message>
    <message>
        <source>Copies the selected address, user name or password</source>
        <translation>Kopiert die ausgewählte Adresse, den Benutzernamen oder das Passwort</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>The sandbox is not running. While it runs, this page lists accounts and sites to try.</source>
        <translation>Die Sandbox läuft nicht. Wenn sie läuft, stehen hier Konten und Sites zum Ausprobieren.</translation>
    </message>
    <message>
        <source>Sites, the meeting service to belong to:</source>
        <translation>Sites (der Besprechungsdienst, zu dem Sie gehören):</translation>
    </message>
    <message>
        <source>Accounts, for Microsoft Outlook in Meetings:</source>
        <translation>Konten, für Microsoft Outlook unter „Besprechungen“:</translation>
    </message>
    <message>
        <source>All of these are played by a sandbox on this computer. Copy an address, open Preferences, choose Microsoft Outlook in Meetings, paste it and press Return.</source>
        <translation>All dies simuliert eine Sandbox auf diesem Computer. Kopieren Sie eine Adresse, öffnen Sie die Einstellungen, wählen Sie unter „Besprechungen“ Microsoft Outlook, fügen Sie sie ein und drücken Sie die Eingabetaste.</translation>
    </message>
    <message>
        <source>Sites to try</source>
        <translation>Sites zum Ausprobieren</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>Accounts to try</source>
        <translation>Konten zum Ausprobieren</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Was es zeigt</translation>
    </message>
    <message>
        <source>Exchange with a password. Any other password is refused, and the third one locks the account until the sandbox is started again</source>
        <translation>Exchange mit Passwort. Jedes andere wird abgelehnt, das dritte sperrt das Konto, bis die Sandbox neu startet</translation>
    </message>
    <message>
        <source>The account is locked from the start: no password is right</source>
        <translation>Das Konto ist von Anfang an gesperrt: Kein Passwort ist richtig</translation>
    </message>
    <message>
        <source>Office 365: sign in in the browser</source>
        <translation>Office 365: Anmeldung im Browser</translation>
    </message>
    <message>
        <source>Office 365 that takes two seconds longer to sign you in</source>
        <translation>Office 365, dessen Anmeldung zwei Sekunden länger dauert</translation>
    </message>
    <message>
        <source>Office 365 whose sign-in ends after a minute: you sign in again</source>
        <translation>Office 365, dessen Anmeldung nach einer Minute endet: Sie melden sich erneut an</translation>
    </message>
    <message>
        <source>Office 365 that refuses every sign-in</source>
        <translation>Office 365, das jede Anmeldung ablehnt</translation>
    </message>
    <message>
        <source>Office 365 that does not respond after the sign-in</source>
        <translation>Office 365, das nach der Anmeldung nicht antwortet</translation>
    </message>
    <message>
        <source>Office 365 that responds with an error (500) after the sign-in</source>
        <translation>Office 365, das nach der Anmeldung mit einem Fehler (500) antwortet</translation>
    </message>
    <message>
        <source>Office 365 that responds to the sign-in with a web page</source>
        <translation>Office 365, das auf die Anmeldung mit einer Webseite antwortet</translation>
    </message>
    <message>
        <source>Office 365 that does not say how long the sign-in is valid</source>
        <translation>Office 365, das nicht sagt, wie lange die Anmeldung gilt</translation>
    </message>
    <message>
        <source>Redirects to onprem@corp.sandbox.example</source>
        <translation>Leitet zu onprem@corp.sandbox.example weiter</translation>
    </message>
    <message>
        <source>An unencrypted address leads to the server: you are asked first</source>
        <translation>Eine unverschlüsselte Adresse führt zum Server: Sie werden zuerst gefragt</translation>
    </message>
    <message>
        <source>Only a service record names the server</source>
        <translation>Nur ein Diensteintrag (SRV) nennt den Server</translation>
    </message>
    <message>
        <source>Responds after a second</source>
        <translation>Antwortet nach einer Sekunde</translation>
    </message>
    <message>
        <source>Never responds</source>
        <translation>Antwortet nie</translation>
    </message>
    <message>
        <source>Responds slowly, byte by byte</source>
        <translation>Antwortet langsam, Byte für Byte</translation>
    </message>
    <message>
        <source>Always responds with an error (500)</source>
        <translation>Antwortet immer mit einem Fehler (500)</translation>
    </message>
    <message>
        <source>Has a certificate for another name</source>
        <translation>Hat ein Zertifikat für einen anderen Namen</translation>
    </message>
    <message>
        <source>Redirects a hundred times</source>
        <translation>Leitet hundertmal weiter</translation>
    </message>
    <message>
        <source>Requires a sign-in method that is not supported</source>
        <translation>Verlangt ein Anmeldeverfahren, das nicht unterstützt wird</translation>
    </message>
    <message>
        <source>Responds with XML that expands to gigabytes</source>
        <translation>Antwortet mit XML, das auf Gigabytes anwächst</translation>
    </message>
    <message>
        <source>Responds with a web page</source>
        <translation>Antwortet mit einer Webseite</translation>
    </message>
    <message>
        <source>Has a web site but no Exchange</source>
        <translation>Hat eine Website, aber kein Exchange</translation>
    </message>
    <message>
        <source>Works and offers version 9.1.0</source>
        <translation>Funktioniert und bietet Version 9.1.0 an</translation>
    </message>
    <message>
        <source>Works; there is no newer version</source>
        <translation>Funktioniert; es gibt keine neuere Version</translation>
    </message>
    <message>
        <source>Works, but each response takes a second</source>
        <translation>Funktioniert, aber jede Antwort dauert eine Sekunde</translation>
    </message>
    <message>
        <source>Responds to every request with a web page</source>
        <translation>Antwortet auf jede Anfrage mit einer Webseite</translation>
    </message>
</context>
</TS>
