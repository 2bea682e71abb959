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
        <source>Clear</source>
        <translation>Effacer</translation>
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
        <source>Continue</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Continue (%1 new)</source>
        <translation>Reprendre (%1 en attente)</translation>
    </message>
    <message>
        <source>Copies the selected rows, or all rows that are shown</source>
        <translation>Copie les lignes sélectionnées, ou toutes celles qui sont affichées</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
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
        <source>Export…</source>
        <translation>Exporter…</translation>
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
        <source>No account is applied yet. Enter your email address in Preferences, Meetings.</source>
        <translation>Aucun compte n’est encore appliqué. Saisissez votre adresse e-mail dans Préférences, Réunions.</translation>
    </message>
    <message>
        <source>No browser opened %1. Open the address yourself.</source>
        <translation>Aucun navigateur n’a ouvert %1. Ouvrez l’adresse vous-même.</translation>
    </message>
    <message>
        <source>No calendar is chosen. Choose Microsoft Outlook in Preferences, Meetings, to see your next meetings.</source>
        <translation>Aucun calendrier n’est choisi. Choisissez Microsoft Outlook dans Préférences, Réunions pour voir vos prochaines réunions.</translation>
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
        <source>Pause</source>
        <translation>Pause</translation>
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
        <source>Your site has news for Preferences. Press Close, then Preferences.</source>
        <translation>Votre site a du nouveau pour les préférences. Cliquez sur Fermer, puis sur Préférences.</translation>
    </message>
    <message>
        <source>its folder cannot be changed</source>
        <translation>son dossier ne peut pas être modifié</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
</context>
</TS>
