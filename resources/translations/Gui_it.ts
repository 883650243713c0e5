<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Informazioni su Brisel Tavik</translation>
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
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versione:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Telefono assistenza: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>E-mail assistenza: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Tutti i diritti riservati</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>Server:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>non disponibile</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Ultima comunicazione: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Sito web assistenza: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Messaggio</translation>
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
        <translation>Operazione riuscita</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Attivazione</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>È necessario registrare Tavik immettendo host, porta e token indicati nell’e‑mail di registrazione del dispositivo e facendo clic su “Registra”.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>È necessario registrare Tavik
per gestire questo dispositivo</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Registrazione necessaria</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>Registra</translation>
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
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>Immettere host, porta e token indicati nell’e‑mail&#xa0;di&#xa0;registrazione&#xa0;del&#xa0;dispositivo.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Controllo remoto</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Consenti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Rifiuta</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Strumenti remoti</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Accesso remoto</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Messaggio</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>Rimane %n secondo per rispondere</numerusform>
            <numerusform>Rimangono %n secondi per rispondere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Accesso</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>Credenziali dimenticate?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorizzazione necessaria</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Per continuare è necessario accedere con&#xa0;l’account&#xa0;online&#xa0;Brisel&#xa0;Tavik</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Accedere con l’account Brisel&#xa0;Tavik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Password</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorizzazione necessaria</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Immettere le proprie credenziali per continuare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Amministratore del computer (account di Windows con privilegi di amministratore)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Password personalizzata Ostrel</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>Dominio:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Immissione password</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Password dell’amministratore</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Password personalizzata</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Messaggio</translation>
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
        <translation>Errore</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: Opzioni</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>Host:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticazione</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Mostra l’icona nell’area di notifica della barra delle applicazioni</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Scarica e installa automaticamente gli aggiornamenti del programma</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>Disattiva ZENT Agent...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Messaggio</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>Messaggio</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>Attendere</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;umenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fino a qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri verso l’alto</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri verso il basso</translation>
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
        <translation>Maiusc</translation>
    </message>
</context>
<context>
    <name>QUnicodeControlCharacterMenu</name>
    <message>
        <source>Insert Unicode control character</source>
        <translation>Inserisci carattere di controllo Unicode</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia indirizzo del &amp;link</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Riavvio</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Riavvia ora</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Posticipa</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 minuti</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 minuti</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 ora</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 ore</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>Ricordamelo tra</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Spegni ora</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Motivo del riavvio</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>Motivo dello spegnimento</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Controllo remoto di Corvane</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Strumenti remoti</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Trasferimento file</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>Termina sessione</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Controllo remoto</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>File caricato</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Caricamento interrotto</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Caricamento annullato</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>File scaricato</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download interrotto</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download annullato</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Cartella caricata</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Cartella scaricata</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>File eliminato</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>File rinominato</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Cartella eliminata</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Cartella rinominata</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Cartella creata</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>Processo terminato</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Servizio avviato</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Servizio arrestato</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Servizio riavviato</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Servizio sospeso</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Servizio ripreso</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Sessione sospesa</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Sessione ripresa</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>Nascondi finestra</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>Mostra o nascondi il registro attività</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>Registro attività</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>Termina sessione</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessione avviata: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessione terminata: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: Invio ticket</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Compilare i campi seguenti e descrivere il problema in dettaglio:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Riepilogo del problema</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Reparto</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Livello di priorità</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Dettagli del problema</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Includi dati del dispositivo (marca, modello, numero di serie, utente connesso, dominio&#xa0;o&#xa0;gruppo&#xa0;di&#xa0;lavoro)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Nota: azienda, nome del dispositivo e proprietario sono inclusi per impostazione predefinita.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Obbligatorio</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Obbligatorio (max. %1 caratteri)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Invio ticket</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Ticket non inviato</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Scartare tutte le modifiche?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Accesso</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorizzazione necessaria</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>È necessario immettere la password personalizzata Zent
per continuare</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Immettere la password personalizzata Zent</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Immissione password</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Password</translation>
    </message>
</context>
</TS>
