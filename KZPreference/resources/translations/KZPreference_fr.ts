<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>KZPreference</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Réunions</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Video devices</source>
        <translation>Appareils vidéo</translation>
    </message>
    <message>
        <source>Brenn Mivra Meetings</source>
        <translation>Brenn Mivra Meetings</translation>
    </message>
    <message>
        <source>Start Brenn Mivra Meetings when my computer starts</source>
        <translation>Ouvrir Brenn Mivra Meetings au démarrage de l’ordinateur</translation>
    </message>
    <message>
        <source>Schedule or start Mivra meetings from Microsoft Outlook</source>
        <translation>Planifier ou démarrer des réunions Mivra depuis Microsoft Outlook</translation>
    </message>
    <message>
        <source>Your setting changes will take effect after you restart Microsoft Outlook.</source>
        <translation>Vos modifications prendront effet au redémarrage de Microsoft Outlook.</translation>
    </message>
    <message>
        <source>Full name:</source>
        <translation>Nom complet :</translation>
    </message>
    <message>
        <source>Mivra site URL:</source>
        <translation>URL du site Mivra :</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>Adresse e-mail :</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changer</translation>
    </message>
    <message>
        <source>Your name:</source>
        <translation>Votre nom :</translation>
    </message>
    <message>
        <source>Your email address:</source>
        <translation>Votre adresse e-mail :</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>Adresse e-mail non valide</translation>
    </message>
    <message>
        <source>Personal Room:</source>
        <translation>Salle personnelle :</translation>
    </message>
    <message>
        <source>Video address:</source>
        <translation>Adresse vidéo :</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Number of days to show in meetings list:</source>
        <translation>Nombre de jours dans la liste des réunions :</translation>
    </message>
    <message>
        <source>Calendar integration</source>
        <translation>Intégration du calendrier</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
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
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message>
        <source>DOMAIN\username or Email</source>
        <translation>DOMAINE\utilisateur ou e-mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Invalid email or password</source>
        <translation>E-mail ou mot de passe non valide</translation>
    </message>
    <message>
        <source>Applied successfully</source>
        <translation>Compte appliqué</translation>
    </message>
    <message>
        <source>Meeting notifications</source>
        <translation>Notifications de réunion</translation>
    </message>
    <message>
        <source>minutes before scheduled start time.</source>
        <translation>minutes avant l’heure de début prévue.</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>Reporter</translation>
    </message>
    <message>
        <source>minutes after Snooze.</source>
        <translation>minutes après le report.</translation>
    </message>
    <message>
        <source>Upcoming Meeting card on dashboard</source>
        <translation>Carte de la prochaine réunion sur le tableau de bord</translation>
    </message>
    <message>
        <source>Automatically discover nearby devices</source>
        <translation>Détecter automatiquement les appareils à proximité</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Sign in in your browser. At the end it shows a code; enter it here to continue.</source>
        <translation>Connectez-vous dans votre navigateur. Il affiche un code à la fin ; saisissez-le ici pour continuer.</translation>
    </message>
    <message>
        <source>Waiting for you to sign in with your browser. This window closes by itself when you are done.</source>
        <translation>En attente de votre connexion dans le navigateur. Cette fenêtre se fermera ensuite d’elle-même.</translation>
    </message>
    <message>
        <source>If no browser opened, open this &amp;address yourself:</source>
        <translation>Si aucun navigateur ne s’est ouvert, ouvrez cette &amp;adresse vous-même :</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>&amp;Code:</source>
        <translation>&amp;Code :</translation>
    </message>
    <message>
        <source>Open the &amp;browser again</source>
        <translation>Rouvrir le &amp;navigateur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Co&amp;ntinue</source>
        <translation>Con&amp;tinuer</translation>
    </message>
    <message>
        <source>This is not the expected answer.</source>
        <translation>Ce n’est pas la réponse attendue.</translation>
    </message>
    <message>
        <source>You are signed in</source>
        <translation>Vous êtes connecté</translation>
    </message>
    <message>
        <source>You can close this page.</source>
        <translation>Vous pouvez fermer cette page.</translation>
    </message>
    <message>
        <source>Sign-in was refused</source>
        <translation>La connexion a été refusée</translation>
    </message>
    <message>
        <source>Sign-in did not work</source>
        <translation>La connexion a échoué</translation>
    </message>
    <message>
        <source>To try again, go back to Preferences.</source>
        <translation>Pour réessayer, revenez aux préférences.</translation>
    </message>
    <message>
        <source>Sign-in is not finished yet</source>
        <translation>La connexion n’est pas encore terminée</translation>
    </message>
    <message>
        <source>Preferences shows whether it worked.</source>
        <translation>Les préférences indiquent si elle a réussi.</translation>
    </message>
    <message>
        <source>Copy personal room</source>
        <translation>Copier la salle personnelle</translation>
    </message>
    <message>
        <source>Copy video address</source>
        <translation>Copier l’adresse vidéo</translation>
    </message>
    <message>
        <source>Look up account</source>
        <translation>Rechercher le compte</translation>
    </message>
    <message>
        <source>Looking up the account…</source>
        <translation>Recherche du compte…</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Application du compte…</translation>
    </message>
    <message>
        <source>Return looks up the account.</source>
        <translation>La touche Entrée recherche le compte.</translation>
    </message>
    <message>
        <source>Return applies the account.</source>
        <translation>La touche Entrée applique le compte.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Return saves, Escape cancels, Ctrl+Tab leaves the fields.</source>
        <translation>Entrée enregistre, Échap annule, Ctrl+Tab quitte les champs.</translation>
    </message>
    <message>
        <source>Applied failed</source>
        <translation>Échec de l’application</translation>
    </message>
</context>
</TS>
