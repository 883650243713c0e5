<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Om Brisel Tavik</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Update now</source>
        <extracomment>Starts the update of the agent</extracomment>
        <translation>Opdater nu</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Supporttelefon: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>Supportmail: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Alle rettigheder forbeholdes</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>Server:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>ikke tilgængelig</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Seneste kommunikation: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Supportwebsted: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Om</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Meddelelse</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Success</source>
        <extracomment>Stands in for the message until the host sets one
----------
Name of the large picture for screen readers</extracomment>
        <translation>Gennemført</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Aktivering</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>Du skal tilmelde Tavik ved at angive vært, port og token fra mailen om&#xa0;enhedstilmelding og klikke på knappen ”Tilmeld”.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>Tavik skal tilmeldes,
for at denne enhed kan administreres</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Tilmelding kræves</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>Tilmeld</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Label of the field for the name of the server</extracomment>
        <translation>Vært:</translation>
    </message>
    <message>
        <source>Token:</source>
        <extracomment>Label of the field for the enrollment token, a row of 32 letters and digits</extracomment>
        <translation>Token:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Label of the field for the number of the server&apos;s network port</extracomment>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>Angiv vært, port og token fra mailen om enhedstilmelding.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Fjernstyring</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Tillad</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Afvis</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Fjernværktøjer</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Fjernadgang</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Meddelelse</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>%n sekund tilbage til at svare</numerusform>
            <numerusform>%n sekunder tilbage til at svare</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Login</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>Glemt brugernavn eller kodeord?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>Log på</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation kræves</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Du skal logge på med din Brisel&#xa0;Tavik‑onlinekonto for&#xa0;at&#xa0;fortsætte</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Log på med din Brisel&#xa0;Tavik-konto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kodeord:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Bruger:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Kodeord</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation kræves</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Indtast dine loginoplysninger for at fortsætte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Computeradministrator (en Windows-konto med administratorrettigheder)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Brugerdefineret Ostrel-kodeord</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>Domæne:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>Bruger:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kodeord:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Indtast kodeord</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Administratorkodeord</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Brugerdefineret kodeord</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Meddelelse</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Error</source>
        <extracomment>Stands in for the message until the host sets one
----------
Name of the large picture for screen readers</extracomment>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: Indstillinger</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>Vært:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Godkendelse</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Bruger:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kodeord:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Vis ikon i meddelelsesområdet på proceslinjen</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Download og installer automatisk programopdateringer</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>Deaktiver ZENT Agent...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Meddelelse</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>Meddelelse</translation>
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
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>Forløb</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>Vent venligst</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Markér alt</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Et trin o&amp;p</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Et trin &amp;ned</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Fortryd</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Annuller Fortryd</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opiér</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Sæt ind</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markér alt</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>Kassér</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rul hertil</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Venstre kant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Øverst</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Højre kant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nederst</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Side til venstre</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Side op</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Side til højre</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Side ned</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rul til venstre</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rul op</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rul til højre</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rul ned</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Skift</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Indsæt Unicode-kontroltegn</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Fortryd</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Annuller Fortryd</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opiér</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Sæt ind</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markér alt</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiér &amp;linkadresse</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Genstart</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Genstart nu</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Udsæt</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 minutter</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 minutter</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 time</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 timer</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>Påmind mig om</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Luk ned nu</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Årsag til genstart</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>Årsag til nedlukning</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Fjernstyring fra Corvane</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Fjernværktøjssession</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Filoverførselssession</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>Afslut session</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Fjernstyringssession</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Fil uploadet</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Upload afbrudt</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Upload annulleret</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Fil downloadet</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download afbrudt</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download annulleret</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Mappe uploadet</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Mappe downloadet</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Fil slettet</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Fil omdøbt</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Mappe slettet</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Mappe omdøbt</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Mappe oprettet</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>Proces afsluttet</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Tjeneste startet</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Tjeneste stoppet</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Tjeneste genstartet</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Tjeneste sat på pause</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Tjeneste genoptaget</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Session sat på pause</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Session genoptaget</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>Skjul vindue</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>Vis eller skjul aktivitetsloggen</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>Aktivitetslog</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>Afslut session</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Session startet: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Session afsluttet: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: Indsend sag</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Udfyld felterne nedenfor, og beskriv dit problem i detaljer:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Kort beskrivelse</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Afdeling</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Prioritetsniveau</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Detaljer om problemet</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Medtag enhedsdata (mærke, model, serienummer, pålogget bruger, domæne&#xa0;eller&#xa0;arbejdsgruppe)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Bemærk: Firma, enhedsnavn og ejer medtages som standard.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>Indsend</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Påkrævet</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Påkrævet (maks. %1 tegn)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Indsend sag</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Sagen er ikke indsendt</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Vil du kassere alle ændringer?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Login</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation kræves</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>Du skal indtaste det brugerdefinerede Zent-kodeord
for at fortsætte</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Indtast det brugerdefinerede Zent-kodeord</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kodeord:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Indtast kodeord</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Kodeord</translation>
    </message>
</context>
</TS>
