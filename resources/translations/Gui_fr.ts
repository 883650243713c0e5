<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>À propos de Brisel Tavik</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version&#xa0;:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Téléphone du support&#xa0;: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>E-mail du support&#xa0;: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Tous droits réservés</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serveur&#xa0;:</translation>
    </message>
    <message>
        <source>n/a</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Dernière communication&#xa0;: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Site web du support&#xa0;: </translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Message</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Opération réussie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Activation</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>Pour inscrire Tavik, saisissez l’hôte, le port et le jeton de l’e-mail d’inscription de l’appareil, puis cliquez sur «&#xa0;Inscrire&#xa0;».</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>Tavik doit être inscrit
pour gérer cet appareil</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Inscription requise</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Enroll</source>
        <translation>Inscrire</translation>
    </message>
    <message>
        <source>Host:</source>
        <translation>Hôte&#xa0;:</translation>
    </message>
    <message>
        <source>Token:</source>
        <translation>Jeton&#xa0;:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port&#xa0;:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>Veuillez saisir l’hôte, le port et le jeton de l’e-mail d’inscription de l’appareil.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <translation>Contrôle à distance</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <translation>Outils à distance</translation>
    </message>
    <message>
        <source>Remote access</source>
        <translation>Accès à distance</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Time left to answer in seconds: %1</source>
        <translation>Temps restant pour répondre en secondes&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>%n&#xa0;seconde restante pour répondre</numerusform>
            <numerusform>%n&#xa0;secondes restantes pour répondre</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Connexion</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <translation>Identifiants oubliés&#xa0;?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation requise</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <translation>Pour continuer, connectez-vous avec votre compte en ligne Brisel Tavik</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <translation>Veuillez vous connecter avec votre compte Brisel Tavik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de
passe&#xa0;:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation requise</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Veuillez saisir vos identifiants pour continuer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Administrateur de l’ordinateur (compte Windows avec privilèges d’administrateur)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Mot de passe personnalisé Ostrel</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domaine&#xa0;:</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de
passe&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Saisir le mot de passe</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Message</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik&#xa0;: Options</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>Host:</source>
        <translation>Hôte&#xa0;:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port&#xa0;:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Afficher l’icône dans la zone de notification de la barre des tâches</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Télécharger et installer automatiquement les mises à jour du programme</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>Désactiver ZENT Agent...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Message</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Redémarrage</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Reporter</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutes</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation>4 heures</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <translation>Me le rappeler dans</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Éteindre le PC</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Motif du redémarrage</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Contrôle à distance par Corvane</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Outils à distance</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Transfert de fichiers</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Contrôle à distance</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <translation>Fichier chargé</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <translation>Chargement interrompu</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <translation>Chargement annulé</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <translation>Fichier téléchargé</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <translation>Téléchargement interrompu</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <translation>Téléchargement annulé</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <translation>Dossier chargé</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <translation>Dossier téléchargé</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fichier supprimé</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fichier renommé</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Dossier supprimé</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Dossier renommé</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Dossier créé</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>Processus terminé</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Service démarré</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Service arrêté</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Service redémarré</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Service suspendu</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Reprise du service</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Session suspendue</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Reprise de la session</translation>
    </message>
    <message>
        <source>Hide window</source>
        <translation>Masquer la fenêtre</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <translation>Afficher ou masquer le journal d’activité</translation>
    </message>
    <message>
        <source>Activity log</source>
        <translation>Journal d’activité</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik&#xa0;: Envoyer un ticket</translation>
    </message>
    <message>
        <source>Tavik</source>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Veuillez remplir les champs ci-dessous et décrire votre problème en détail&#xa0;:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Résumé du problème</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Niveau de priorité</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Détails du problème</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Inclure les données de l’appareil (marque, modèle, numéro de série, utilisateur connecté, domaine ou groupe de travail)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Remarque&#xa0;: l’entreprise, le nom de l’appareil et le propriétaire sont inclus par défaut.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <translation>Obligatoire (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <translation>Envoyer un ticket</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Ticket non envoyé</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Voulez-vous abandonner toutes les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Connexion</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation requise</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>Vous devez saisir le mot de passe personnalisé Zent
pour continuer</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Veuillez saisir le mot de passe personnalisé Zent</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de
passe&#xa0;:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Saisir le mot de passe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
</TS>
