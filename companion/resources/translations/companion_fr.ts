<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>companion</name>
    <message>
        <source>"%1" is no name of a site. Enter one such as meetings.example.com.</source>
        <translation>« %1 » n’est pas un nom de site. Saisissez-en un, par exemple meetings.example.com.</translation>
    </message>
    <message>
        <source>%1 Start the companion again.</source>
        <translation>%1 Redémarrez le Companion.</translation>
    </message>
    <message>
        <source>%1 asks for a user name and password.</source>
        <translation>%1 demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2. Make its folder writable and choose again.</source>
        <translation>Impossible de modifier %1 : %2. Autorisez l’écriture dans son dossier, puis refaites votre choix.</translation>
    </message>
    <message>
        <source>%1 cannot be deleted. Make its folder writable and try again.</source>
        <translation>Impossible de supprimer %1. Autorisez l’écriture dans son dossier, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 cannot be reached. Check your network connection and try again.</source>
        <translation>%1 est injoignable. Vérifiez votre connexion réseau, puis réessayez.</translation>
    </message>
    <message>
        <source>%1 did not accept your sign-in. Detect the account again to sign in anew.</source>
        <translation>%1 a refusé votre connexion. Recherchez de nouveau le compte pour vous reconnecter.</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 n’a pas répondu à temps. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 does not accept a user name and password (Basic), the only way supported. Ask your administrator to allow it.</source>
        <translation>%1 n’accepte pas la connexion par nom d’utilisateur et mot de passe (Basic), la seule prise en charge. Demandez à votre administrateur de l’autoriser.</translation>
    </message>
    <message>
        <source>%1 does not have what was asked of it. Check its name, or tell your administrator.</source>
        <translation>%1 ne dispose pas de ce qui a été demandé. Vérifiez son nom ou prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 does not let you in. Ask your administrator for access.</source>
        <translation>%1 vous refuse l’accès. Demandez un accès à votre administrateur.</translation>
    </message>
    <message>
        <source>%1 does not offer the encryption that is needed. Ask your administrator to mend it.</source>
        <translation>%1 ne propose pas le chiffrement nécessaire. Demandez à votre administrateur de le corriger.</translation>
    </message>
    <message>
        <source>%1 gave no usable answer. Check its name, or tell your administrator.</source>
        <translation>%1 n’a pas donné de réponse exploitable. Vérifiez son nom ou prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 has a problem of its own. Try again later, or tell your administrator.</source>
        <translation>%1 rencontre un problème interne. Réessayez plus tard ou prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 has no Exchange service. Check the address, or ask your administrator.</source>
        <translation>%1 n’a pas de service Exchange. Vérifiez l’adresse ou consultez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 is an Office 365 account.</source>
        <translation>%1 est un compte Office 365.</translation>
    </message>
    <message>
        <source>%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or start the companion with --network.</source>
        <translation>%1 est en dehors du bac à sable et n’a pas été interrogé. Utilisez un compte ou un site de la page « Essayer », ou démarrez le Companion avec --network.</translation>
    </message>
    <message>
        <source>%1 keeps leading to other addresses. Tell your administrator.</source>
        <translation>%1 renvoie sans fin vers d’autres adresses. Prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your administrator.</source>
        <translation>%1 renvoie vers une adresse non chiffrée ou peu sûre, qui n’est pas utilisée. Prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 names no page for joining by number. Ask your administrator for its address.</source>
        <translation>%1 n’indique aucune page pour participer par numéro. Demandez l’adresse à votre administrateur.</translation>
    </message>
    <message>
        <source>%1 names no page of meeting settings. Ask your administrator for its address.</source>
        <translation>%1 n’indique aucune page de paramètres de réunion. Demandez l’adresse à votre administrateur.</translation>
    </message>
    <message>
        <source>%1 needs your user name and password. Detect the account again and enter them.</source>
        <translation>%1 a besoin de votre nom d’utilisateur et de votre mot de passe. Recherchez de nouveau le compte, puis saisissez-les.</translation>
    </message>
    <message>
        <source>%1 refused the user name or the password. Detect the account again.</source>
        <translation>%1 a refusé le nom d’utilisateur ou le mot de passe. Recherchez de nouveau le compte.</translation>
    </message>
    <message>
        <source>%1 says: "%2" Check the address, or ask your administrator.</source>
        <translation>%1 indique : « %2 » Vérifiez l’adresse ou consultez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 was not found. Check its name and your network connection.</source>
        <translation>%1 est introuvable. Vérifiez son nom et votre connexion réseau.</translation>
    </message>
    <message>
        <source>A check for updates is already running.</source>
        <translation>Une recherche de mises à jour est déjà en cours.</translation>
    </message>
    <message>
        <source>A user name with a colon cannot be sent to %1. Use your email address.</source>
        <translation>Un nom d’utilisateur contenant deux-points ne peut pas être envoyé à %1. Utilisez votre adresse e-mail.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Asking %1.</source>
        <translation>Interrogation de %1.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings does not start after login any more.</source>
        <translation>Brenn Mivra Meetings ne démarre plus à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings starts after your next login.</source>
        <translation>Brenn Mivra Meetings démarrera à votre prochaine ouverture de session.</translation>
    </message>
    <message>
        <source>Challenge</source>
        <translation>Demande</translation>
    </message>
    <message>
        <source>Challenges, their answers, and addresses that were opened</source>
        <translation>Demandes d’authentification, leurs réponses et adresses ouvertes</translation>
    </message>
    <message>
        <source>Checking for updates.</source>
        <translation>Recherche de mises à jour.</translation>
    </message>
    <message>
        <source>Choose a row to see its whole content.</source>
        <translation>Choisissez une ligne pour voir tout son contenu.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Eff&amp;acer</translation>
    </message>
    <message>
        <source>Command to host</source>
        <translation>Commande à l’hôte</translation>
    </message>
    <message>
        <source>Command to plug-in</source>
        <translation>Commande au plug-in</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>Repren&amp;dre</translation>
    </message>
    <message>
        <source>Co&amp;ntinue (%1 new)</source>
        <translation>Repren&amp;dre (%1 en attente)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>Copie les lignes sélectionnées, ou toutes celles qui sont affichées</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Events (*.jsonl)</source>
        <translation>Événements (*.jsonl)</translation>
    </message>
    <message>
        <source>Exchange did not accept the saved user name and password. Detect the account again in Preferences, Meetings.</source>
        <translation>Exchange a refusé le nom d’utilisateur et le mot de passe enregistrés. Recherchez de nouveau le compte dans Préférences, Réunions.</translation>
    </message>
    <message>
        <source>Exchange did not accept this user name and password. Check them, then detect the account again.</source>
        <translation>Exchange a refusé ce nom d’utilisateur et ce mot de passe. Vérifiez-les, puis recherchez de nouveau le compte.</translation>
    </message>
    <message>
        <source>Export events</source>
        <translation>Exporter les événements</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>Filter by name or content</source>
        <translation>Filtrer par nom ou contenu</translation>
    </message>
    <message>
        <source>Forgets all events</source>
        <translation>Oublie tous les événements</translation>
    </message>
    <message>
        <source>Keeps the list as it is while you read</source>
        <translation>Fige la liste pendant que vous lisez</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Meetings can be scheduled from Microsoft Outlook once it is started again.</source>
        <translation>Les réunions pourront être planifiées depuis Microsoft Outlook après son redémarrage.</translation>
    </message>
    <message>
        <source>Meetings come from Google now.</source>
        <translation>Les réunions proviennent maintenant de Google.</translation>
    </message>
    <message>
        <source>Meetings come from Microsoft Outlook now.</source>
        <translation>Les réunions proviennent maintenant de Microsoft Outlook.</translation>
    </message>
    <message>
        <source>Meetings come from Mivra now.</source>
        <translation>Les réunions proviennent maintenant de Mivra.</translation>
    </message>
    <message>
        <source>Meetings come from no calendar now.</source>
        <translation>Les réunions ne proviennent plus d’aucun calendrier.</translation>
    </message>
    <message>
        <source>Microsoft Outlook schedules no meetings any more once it is started again.</source>
        <translation>Après le redémarrage de Microsoft Outlook, les réunions ne pourront plus y être planifiées.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Nearby video devices are looked for. This companion finds none.</source>
        <translation>Les appareils vidéo à proximité sont recherchés. Ce Companion n’en trouve aucun.</translation>
    </message>
    <message>
        <source>Nearby video devices are not looked for any more.</source>
        <translation>Les appareils vidéo à proximité ne sont plus recherchés.</translation>
    </message>
    <message>
        <source>To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email address.</source>
        <translation>Pour voir vos prochaines réunions, choisissez Microsoft Outlook dans Préférences, Réunions et saisissez votre adresse e-mail.</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>Aucun navigateur n’a ouvert %1. Ouvrez l’adresse vous-même.</translation>
    </message>
    <message>
        <source>No meetings in the days that you chose.</source>
        <translation>Aucune réunion pendant les jours choisis.</translation>
    </message>
    <message>
        <source>No site is known that could have updates. Choose one in Preferences, Account.</source>
        <translation>Aucun site susceptible de fournir des mises à jour n’est connu. Choisissez-en un dans Préférences, Compte.</translation>
    </message>
    <message>
        <source>No site is known. Choose one in Preferences, Account.</source>
        <translation>Aucun site n’est connu. Choisissez-en un dans Préférences, Compte.</translation>
    </message>
    <message>
        <source>Nobody is signed in as %1. Detect the account again to sign in.</source>
        <translation>Personne n’est connecté en tant que %1. Recherchez de nouveau le compte pour vous connecter.</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notification</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Paus&amp;e</source>
        <translation>Pa&amp;use</translation>
    </message>
    <message>
        <source>Personal room</source>
        <translation>Salle personnelle</translation>
    </message>
    <message>
        <source>Settings that were written, what changed in them, and keychain items</source>
        <translation>Paramètres écrits, leurs changements et éléments du trousseau</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Store write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Telemetry</source>
        <translation>Télémétrie</translation>
    </message>
    <message>
        <source>Telemetry cannot be kept in %1: %2. Free some space, or switch it off.</source>
        <translation>Impossible de conserver la télémétrie dans %1 : %2. Libérez de l’espace ou désactivez-la.</translation>
    </message>
    <message>
        <source>The certificate of %1 belongs to another name. Ask your administrator to mend it.</source>
        <translation>Le certificat de %1 est établi pour un autre nom. Demandez à votre administrateur de le corriger.</translation>
    </message>
    <message>
        <source>The certificate of %1 has expired. Check the date of this computer, or ask your administrator to renew it.</source>
        <translation>Le certificat de %1 a expiré. Vérifiez la date de cet ordinateur ou demandez à votre administrateur de le renouveler.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not valid yet. Check the date of this computer.</source>
        <translation>Le certificat de %1 n’est pas encore valable. Vérifiez la date de cet ordinateur.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted. Ask your administrator before you go on.</source>
        <translation>Le certificat de %1 n’est pas approuvé. Consultez votre administrateur avant de continuer.</translation>
    </message>
    <message>
        <source>The events are copied, without passwords and tokens.</source>
        <translation>Les événements sont copiés, sans mots de passe ni jetons.</translation>
    </message>
    <message>
        <source>The events are in %1, without passwords and tokens.</source>
        <translation>Les événements sont dans %1, sans mots de passe ni jetons.</translation>
    </message>
    <message>
        <source>The events could not be written to %1 (%2). Choose another folder.</source>
        <translation>Impossible d’écrire les événements dans %1 (%2). Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. Choose it in Preferences, Meetings.</source>
        <translation>Les réunions de votre calendrier n’apparaissent pas ici : ce Companion ne lit que Microsoft Outlook. Choisissez-le dans Préférences, Réunions.</translation>
    </message>
    <message>
        <source>The sandbox is still starting. Try again in a moment.</source>
        <translation>Le bac à sable démarre encore. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The search for an Exchange service was given up.</source>
        <translation>La recherche d’un service Exchange a été abandonnée.</translation>
    </message>
    <message>
        <source>The sign-in of %1 cannot be renewed now. Refresh later.</source>
        <translation>La connexion de %1 ne peut pas être renouvelée pour le moment. Actualisez plus tard.</translation>
    </message>
    <message>
        <source>The sign-in of %1 could not be renewed. Detect the account again to sign in.</source>
        <translation>La connexion de %1 n’a pas pu être renouvelée. Recherchez de nouveau le compte pour vous connecter.</translation>
    </message>
    <message>
        <source>The sign-in of %1 was not renewed in time. Refresh, or detect the account again.</source>
        <translation>La connexion de %1 n’a pas été renouvelée à temps. Actualisez, ou recherchez de nouveau le compte.</translation>
    </message>
    <message>
        <source>The site has changed meanwhile. Check for updates again.</source>
        <translation>Le site a changé entre-temps. Recherchez de nouveau les mises à jour.</translation>
    </message>
    <message>
        <source>The site is %1 now.</source>
        <translation>Le site est maintenant %1.</translation>
    </message>
    <message>
        <source>The site is %1 now. It has not answered yet.</source>
        <translation>Le site est maintenant %1. Il n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>The warning window</source>
        <translation>La fenêtre d’avertissement</translation>
    </message>
    <message>
        <source>This email address has no usable domain. Check it for typing errors.</source>
        <translation>Cette adresse e-mail n’a pas de domaine utilisable. Vérifiez qu’elle ne contient pas de faute de frappe.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Trace (error)</source>
        <translation>Trace (erreur)</translation>
    </message>
    <message>
        <source>Trace (warning)</source>
        <translation>Trace (avertissement)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Version %1 is available.</source>
        <translation>La version %1 est disponible.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>What host and plug-in ask of each other</source>
        <translation>Ce que l’hôte et le plug-in se demandent</translation>
    </message>
    <message>
        <source>What is reported about the use of the window</source>
        <translation>Ce qui est signalé de l’utilisation de la fenêtre</translation>
    </message>
    <message>
        <source>What the host's services report to the plug-in, the personal room too</source>
        <translation>Ce que les services de l’hôte signalent au plug-in, salle personnelle comprise</translation>
    </message>
    <message>
        <source>What the plug-in and the host library do inside</source>
        <translation>Ce que font le plug-in et la bibliothèque de l’hôte</translation>
    </message>
    <message>
        <source>Whole content</source>
        <translation>Contenu complet</translation>
    </message>
    <message>
        <source>Writes the events that are shown to a file</source>
        <translation>Écrit les événements affichés dans un fichier</translation>
    </message>
    <message>
        <source>You are %1 now, %2.</source>
        <translation>Vous êtes maintenant %1, %2.</translation>
    </message>
    <message>
        <source>You did not allow %1. Detect again if you trust it.</source>
        <translation>Vous n’avez pas autorisé %1. Relancez la recherche si vous lui faites confiance.</translation>
    </message>
    <message>
        <source>You have no personal room any more.</source>
        <translation>Vous n’avez plus de salle personnelle.</translation>
    </message>
    <message>
        <source>You have the newest version.</source>
        <translation>Vous avez la version la plus récente.</translation>
    </message>
    <message>
        <source>Your personal room is %1 now.</source>
        <translation>Votre salle personnelle est maintenant %1.</translation>
    </message>
    <message>
        <source>Your site has news for Preferences. Press Close Preferences, then Preferences.</source>
        <translation>Votre site a du nouveau pour les préférences. Cliquez sur « Fermer les préférences », puis sur « Préférences ».</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>son dossier ne peut pas être modifié</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>Record to</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Telemetr&amp;y</source>
        <translation>Té&amp;lémétrie</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>Inspec&amp;teur</translation>
    </message>
    <message>
        <source>&amp;Try out</source>
        <translation>E&amp;ssayer</translation>
    </message>
    <message>
        <source>&amp;Meetings</source>
        <translation>&amp;Réunions</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are looked for in the network and in a sandbox on this computer.</source>
        <translation>Les sites de réunion et Exchange sont recherchés sur le réseau et dans un bac à sable sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Meeting sites and Exchange are played by a sandbox on this computer.</source>
        <translation>Les sites de réunion et Exchange sont simulés par un bac à sable sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Records (*.jsonl)</source>
        <translation>Enregistrements (*.jsonl)</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié : %1</translation>
    </message>
    <message>
        <source>May %1 be asked for your Exchange account?</source>
        <translation>Autoriser l’interrogation de %1 pour votre compte Exchange ?</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Exchange</translation>
    </message>
    <message>
        <source>&amp;Do not allow</source>
        <translation>&amp;Ne pas autoriser</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Autoriser</translation>
    </message>
    <message>
        <source>Detect again to enter another user name or password.</source>
        <translation>Relancez la recherche pour saisir un autre nom d’utilisateur ou mot de passe.</translation>
    </message>
    <message>
        <source>The search leads to %1. Allow it only if you know this server: your email address, and later your password, may be sent to it.</source>
        <translation>La recherche mène à %1. N’autorisez ce serveur que si vous le connaissez : votre adresse e-mail, puis votre mot de passe, peuvent lui être envoyés.</translation>
    </message>
    <message>
        <source>&amp;Guest</source>
        <translation>&amp;Invité</translation>
    </message>
    <message>
        <source>&amp;Signed in</source>
        <translation>&amp;Connecté</translation>
    </message>
    <message>
        <source>Writes what happens to a file, for a report</source>
        <translation>Écrit ce qui se passe dans un fichier, pour un rapport</translation>
    </message>
    <message>
        <source>Opens its page in the browser</source>
        <translation>Ouvre sa page dans le navigateur</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Rechercher les mises à &amp;jour</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Préférences</translation>
    </message>
    <message>
        <source>Stop &amp;recording</source>
        <translation>Arrêter l’&amp;enregistrement</translation>
    </message>
    <message>
        <source>&amp;Join by number</source>
        <translation>Participer par &amp;numéro</translation>
    </message>
    <message>
        <source>&amp;Account</source>
        <translation>Co&amp;mpte</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Get &amp;version %1</source>
        <translation>Obtenir la &amp;version %1</translation>
    </message>
    <message>
        <source>&amp;Close Preferences</source>
        <translation>&amp;Fermer les préférences</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. Unlock the keyring; they are saved then.</source>
        <translation>Impossible de conserver les mots de passe : le trousseau est verrouillé. Ils restent connus jusqu’à la fermeture de Brenn Mivra Meetings. Déverrouillez le trousseau ; ils seront alors enregistrés.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. Start or install one, such as GNOME Keyring; they are saved then.</source>
        <translation>Impossible de conserver les mots de passe : il n’y a pas de trousseau. Ils restent connus jusqu’à la fermeture de Brenn Mivra Meetings. Démarrez ou installez-en un, par exemple GNOME Keyring ; ils seront alors enregistrés.</translation>
    </message>
    <message>
        <source>Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings quits. Wait, or restart the keyring; they are saved then.</source>
        <translation>Impossible de conserver les mots de passe : le trousseau ne répond pas. Ils restent connus jusqu’à la fermeture de Brenn Mivra Meetings. Attendez ou redémarrez le trousseau ; ils seront alors enregistrés.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. Make the folder writable; the next change saves them all.</source>
        <translation>Impossible d’enregistrer les réglages : %1 est en lecture seule. Ils sont conservés jusqu’à la fermeture de Brenn Mivra Meetings. Autorisez l’écriture dans le dossier ; la prochaine modification les enregistrera tous.</translation>
    </message>
    <message>
        <source>Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. Free some space; the next change saves them all.</source>
        <translation>Impossible d’enregistrer les réglages : le disque est plein. Ils sont conservés jusqu’à la fermeture de Brenn Mivra Meetings. Libérez de l’espace ; la prochaine modification les enregistrera tous.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. Check the folder; the next change saves them all.</source>
        <translation>Impossible d’enregistrer les réglages dans %1. Ils sont conservés jusqu’à la fermeture de Brenn Mivra Meetings. Vérifiez le dossier ; la prochaine modification les enregistrera tous.</translation>
    </message>
    <message>
        <source>Settings could not be read and were set aside as %1. They start anew.</source>
        <translation>Les réglages étaient illisibles et ont été mis de côté dans %1. Les valeurs par défaut s’appliquent de nouveau.</translation>
    </message>
    <message>
        <source>Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept until Brenn Mivra Meetings quits. Move the file away, then start again.</source>
        <translation>Impossible de lire ou d’enregistrer les réglages : %1 est endommagé ou appartient à quelqu’un d’autre. Ils sont conservés jusqu’à la fermeture de Brenn Mivra Meetings. Déplacez le fichier, puis redémarrez.</translation>
    </message>
    <message>
        <source>Your next meetings:</source>
        <translation>Vos prochaines réunions :</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>Aujourd’hui, %1</translation>
    </message>
    <message>
        <source>Next meetings</source>
        <translation>Prochaines réunions</translation>
    </message>
    <message>
        <source>Asking for your next meetings.</source>
        <translation>Recherche de vos prochaines réunions.</translation>
    </message>
    <message>
        <source>has started</source>
        <translation>a commencé</translation>
    </message>
    <message>
        <source>starts in %1 minutes</source>
        <translation>commence dans %1 minutes</translation>
    </message>
    <message>
        <source>starts in 1 minute</source>
        <translation>commence dans 1 minute</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Act&amp;ualiser</translation>
    </message>
    <message>
        <source>Tomorrow, %1</source>
        <translation>Demain, %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and addresses are not.</source>
        <translation>Enregistré dans %1. Joignez le fichier à votre rapport ; les mots de passe et jetons y sont remplacés, mais pas les noms ni les adresses.</translation>
    </message>
    <message>
        <source>Recording to %1. Do what goes wrong, then press Stop recording.</source>
        <translation>Enregistrement dans %1. Reproduisez le problème, puis cliquez sur « Arrêter l’enregistrement ».</translation>
    </message>
    <message>
        <source>Recording has ended: %1. What came before is in %2. Make room, then record again.</source>
        <translation>L’enregistrement s’est arrêté : %1. Ce qui précède se trouve dans %2. Libérez de l’espace, puis recommencez.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Choose another place for the record.</source>
        <translation>Impossible d’écrire %1 : %2. Choisissez un autre emplacement pour l’enregistrement.</translation>
    </message>
    <message>
        <source>The sandbox has ended.</source>
        <translation>Le bac à sable s’est arrêté.</translation>
    </message>
    <message>
        <source>The sandbox does not answer.</source>
        <translation>Le bac à sable ne répond pas.</translation>
    </message>
    <message>
        <source>The sandbox is not running: kz-sandbox is not beside this program.</source>
        <translation>Le bac à sable ne fonctionne pas : kz-sandbox n’est pas à côté de ce programme.</translation>
    </message>
    <message>
        <source>The sandbox did not start: %1.</source>
        <translation>Le bac à sable n’a pas démarré : %1.</translation>
    </message>
    <message>
        <source>The sandbox plays nothing: the openssl program may be missing.</source>
        <translation>Le bac à sable ne simule rien : le programme openssl est peut-être absent.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Changer</translation>
    </message>
    <message>
        <source>Change site</source>
        <translation>Changer de site</translation>
    </message>
    <message>
        <source>&amp;Use it anyway</source>
        <translation>&amp;Utiliser quand même</translation>
    </message>
    <message>
        <source>&amp;Site of your meeting service:</source>
        <translation>&amp;Site de votre service de réunion :</translation>
    </message>
    <message>
        <source>&amp;Keep the old site</source>
        <translation>&amp;Garder l’ancien site</translation>
    </message>
    <message>
        <source>Asking the site.</source>
        <translation>Interrogation du site.</translation>
    </message>
    <message>
        <source>Nothing is written, and nothing is kept.</source>
        <translation>Rien n’est écrit et rien n’est conservé.</translation>
    </message>
    <message>
        <source>Telemetry records</source>
        <translation>Données de télémétrie</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>Your choices in Preferences, without anything personal, are kept in %1. They stay on this computer.</source>
        <translation>Vos choix dans les préférences, sans rien de personnel, sont conservés dans %1. Ils restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>&amp;Delete all</source>
        <translation>Tout s&amp;upprimer</translation>
    </message>
    <message>
        <source>&amp;Keep what I choose</source>
        <translation>Conserver mes c&amp;hoix</translation>
    </message>
    <message>
        <source>Nothing is written. What was kept before lies in %1.</source>
        <translation>Rien n’est écrit. Ce qui a été conservé auparavant se trouve dans %1.</translation>
    </message>
    <message>
        <source>Use t&amp;his site</source>
        <translation>&amp;Utiliser ce site</translation>
    </message>
    <message>
        <source>Copies the selected address, user name or password</source>
        <translation>Copie l’adresse, le nom d’utilisateur ou le mot de passe sélectionné</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>The sandbox is not running. While it runs, this page lists accounts and sites to try.</source>
        <translation>Le bac à sable ne fonctionne pas. Quand il fonctionne, cette page propose des comptes et des sites à essayer.</translation>
    </message>
    <message>
        <source>Sites, the meeting service to belong to:</source>
        <translation>Sites (le service de réunion auquel vous appartenez) :</translation>
    </message>
    <message>
        <source>Accounts, for Microsoft Outlook in Meetings:</source>
        <translation>Comptes, pour Microsoft Outlook dans Réunions :</translation>
    </message>
    <message>
        <source>All of these are played by a sandbox on this computer. Copy an address, open Preferences, choose Microsoft Outlook in Meetings, paste it and press Return.</source>
        <translation>Tout cela est simulé par un bac à sable sur cet ordinateur. Copiez une adresse, ouvrez les préférences, choisissez Microsoft Outlook dans Réunions, collez-la et appuyez sur Entrée.</translation>
    </message>
    <message>
        <source>Sites to try</source>
        <translation>Sites à essayer</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Accounts to try</source>
        <translation>Comptes à essayer</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Ce que cela montre</translation>
    </message>
    <message>
        <source>Exchange with a password. Any other password is refused, and the third one locks the account until the sandbox is started again</source>
        <translation>Exchange avec un mot de passe. Tout autre est refusé, et le troisième verrouille le compte jusqu’au redémarrage du bac à sable</translation>
    </message>
    <message>
        <source>The account is locked from the start: no password is right</source>
        <translation>Le compte est verrouillé dès le départ : aucun mot de passe n’est bon</translation>
    </message>
    <message>
        <source>Office 365: sign in in the browser</source>
        <translation>Office 365 : connexion dans le navigateur</translation>
    </message>
    <message>
        <source>Office 365 that takes two seconds longer to sign you in</source>
        <translation>Office 365 dont la connexion prend deux secondes de plus</translation>
    </message>
    <message>
        <source>Office 365 whose sign-in ends after a minute: you sign in again</source>
        <translation>Office 365 dont la connexion expire au bout d’une minute : vous vous reconnectez</translation>
    </message>
    <message>
        <source>Office 365 that refuses every sign-in</source>
        <translation>Office 365 qui refuse toute connexion</translation>
    </message>
    <message>
        <source>Office 365 that does not respond after the sign-in</source>
        <translation>Office 365 qui ne répond pas après la connexion</translation>
    </message>
    <message>
        <source>Office 365 that responds with an error (500) after the sign-in</source>
        <translation>Office 365 qui répond par une erreur (500) après la connexion</translation>
    </message>
    <message>
        <source>Office 365 that responds to the sign-in with a web page</source>
        <translation>Office 365 qui répond à la connexion par une page web</translation>
    </message>
    <message>
        <source>Office 365 that does not say how long the sign-in is valid</source>
        <translation>Office 365 qui n’indique pas la durée de validité de la connexion</translation>
    </message>
    <message>
        <source>Redirects to onprem@corp.sandbox.example</source>
        <translation>Redirige vers onprem@corp.sandbox.example</translation>
    </message>
    <message>
        <source>An unencrypted address leads to the server: you are asked first</source>
        <translation>Une adresse non chiffrée mène au serveur : on vous demande d’abord votre accord</translation>
    </message>
    <message>
        <source>Only a service record names the server</source>
        <translation>Seul un enregistrement de service (SRV) désigne le serveur</translation>
    </message>
    <message>
        <source>Responds after a second</source>
        <translation>Répond au bout d’une seconde</translation>
    </message>
    <message>
        <source>Never responds</source>
        <translation>Ne répond jamais</translation>
    </message>
    <message>
        <source>Responds slowly, byte by byte</source>
        <translation>Répond lentement, octet par octet</translation>
    </message>
    <message>
        <source>Always responds with an error (500)</source>
        <translation>Répond toujours par une erreur (500)</translation>
    </message>
    <message>
        <source>Has a certificate for another name</source>
        <translation>A un certificat établi pour un autre nom</translation>
    </message>
    <message>
        <source>Redirects a hundred times</source>
        <translation>Redirige cent fois</translation>
    </message>
    <message>
        <source>Requires a sign-in method that is not supported</source>
        <translation>Exige une méthode de connexion non prise en charge</translation>
    </message>
    <message>
        <source>Responds with XML that expands to gigabytes</source>
        <translation>Répond par du XML qui enfle jusqu’à des gigaoctets</translation>
    </message>
    <message>
        <source>Responds with a web page</source>
        <translation>Répond par une page web</translation>
    </message>
    <message>
        <source>Has a web site but no Exchange</source>
        <translation>A un site web, mais pas d’Exchange</translation>
    </message>
    <message>
        <source>Works and offers version 9.1.0</source>
        <translation>Fonctionne et propose la version 9.1.0</translation>
    </message>
    <message>
        <source>Works; there is no newer version</source>
        <translation>Fonctionne ; il n’y a pas de version plus récente</translation>
    </message>
    <message>
        <source>Works, but each response takes a second</source>
        <translation>Fonctionne, mais chaque réponse prend une seconde</translation>
    </message>
    <message>
        <source>Responds to every request with a web page</source>
        <translation>Répond à chaque requête par une page web</translation>
    </message>
</context>
</TS>
