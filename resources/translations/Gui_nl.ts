<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Info over Brisel Tavik</translation>
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
        <translation>Nu bijwerken</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versie:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Supporttelefoon: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>Support-e-mail: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Alle rechten voorbehouden</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>Server:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>niet beschikbaar</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Laatste communicatie: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Supportwebsite: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Bericht</translation>
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
        <translation>Gelukt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Activering</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>U moet Tavik inschrijven: voer de host, de poort en het token uit de e‑mail voor apparaatinschrijving in en klik op “Inschrijven”.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>Tavik moet worden ingeschreven
om dit apparaat te kunnen beheren</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Inschrijving vereist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>Inschrijven</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Label of the field for the name of the server</extracomment>
        <translation>Host:</translation>
    </message>
    <message>
        <source>Token:</source>
        <extracomment>Label of the field for the enrollment token, a row of 32 letters and digits</extracomment>
        <translation>Token:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Label of the field for the number of the server&apos;s network port</extracomment>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>Voer de host, de poort en het token uit&#xa0;de&#xa0;e‑mail&#xa0;voor&#xa0;apparaatinschrijving&#xa0;in.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Besturing op afstand</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Toestaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Weigeren</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Externe hulpprogramma’s</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Toegang op afstand</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Bericht</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>Nog %n seconde om te antwoorden</numerusform>
            <numerusform>Nog %n seconden om te antwoorden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Aanmelden</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>Aanmeldgegevens vergeten?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisatie vereist</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>U moet zich aanmelden met uw Brisel&#xa0;Tavik‑onlineaccount om&#xa0;door&#xa0;te&#xa0;gaan</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Meld u aan met uw Brisel&#xa0;Tavik-account</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wacht-
woord:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Gebruiker:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Wachtwoord</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisatie vereist</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Voer uw aanmeldgegevens in om door te gaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Computerbeheerder (een Windows-account met beheerdersrechten)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Aangepast Ostrel-wachtwoord</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>Domein:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>Gebruiker:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Wachtwoord invoeren</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Beheerderswachtwoord</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Aangepast wachtwoord</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Bericht</translation>
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
        <translation>Fout</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: Opties</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>Host:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Verificatie</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Gebruiker:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Pictogram weergeven in het systeemvak van de taakbalk</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Programma-updates automatisch downloaden en installeren</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>ZENT Agent deactiveren...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Bericht</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>Bericht</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>Even geduld</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Ver&amp;hogen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Ver&amp;lagen</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Opnieu&amp;w</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>Verwerpen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierheen schuiven</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linkerrand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Bovenaan</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechterrand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onderaan</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina naar links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina omhoog</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina naar rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina omlaag</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Naar links schuiven</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Omhoog schuiven</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Naar rechts schuiven</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Omlaag schuiven</translation>
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
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Unicode-besturingsteken invoegen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Opnieu&amp;w</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadres kopiëren</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Herstarten</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Nu herstarten</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Uitstellen</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 minuten</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 uur</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 uur</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>Herinner mij over</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Nu afsluiten</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Reden voor het herstarten</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>Reden voor het afsluiten</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Besturing op afstand door Corvane</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Externe hulpprogramma’s</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Bestandsoverdracht</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>Beëindigen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Besturing op afstand</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Bestand geüpload</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Uploaden afgebroken</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Uploaden geannuleerd</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Bestand gedownload</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Downloaden afgebroken</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Downloaden geannuleerd</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Map geüpload</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Map gedownload</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Bestand verwijderd</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Bestand hernoemd</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Map verwijderd</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Map hernoemd</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Map gemaakt</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>Proces beëindigd</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Service gestart</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Service gestopt</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Service opnieuw gestart</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Service onderbroken</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Service hervat</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Sessie onderbroken</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Sessie hervat</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>Venster verbergen</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>Activiteitenlogboek weergeven of verbergen</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>Activiteitenlogboek</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>Sessie beëindigen</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessie gestart: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessie beëindigd: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: Ticket indienen</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Vul de onderstaande velden in en beschrijf uw probleem zo precies mogelijk:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Korte omschrijving</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Afdeling</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Prioriteitsniveau</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Probleemdetails</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Apparaatgegevens meesturen (merk, model, serienummer, aangemelde gebruiker, domein/werkgroep)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Opmerking: bedrijf, apparaatnaam en eigenaar worden standaard meegestuurd.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>Indienen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Verplicht</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Verplicht (max. %1 tekens)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Ticket indienen</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Ticket niet ingediend</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Wilt u alle wijzigingen verwerpen?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Aanmelden</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisatie vereist</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>U moet het aangepaste Zent-wachtwoord invoeren
om door te gaan</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Voer het aangepaste Zent-wachtwoord in</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wacht-
woord:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Wachtwoord invoeren</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Wachtwoord</translation>
    </message>
</context>
</TS>
