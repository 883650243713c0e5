<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Sobre o Brisel Tavik</translation>
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
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Versão:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Telefone do suporte: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>E-mail do suporte: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Todos os direitos reservados</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>não disponível</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Última comunicação: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Site do suporte: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Mensagem</translation>
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
        <translation>Operação concluída</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Ativação</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>Para registrar o Tavik, insira o host, a porta e o token do e‑mail de registro do&#xa0;dispositivo e clique no botão “Registrar”.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>É necessário registrar o Tavik
para gerenciar este dispositivo</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Registro necessário</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>Registrar</translation>
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
        <translation>Insira o host, a porta e o token do&#xa0;e‑mail&#xa0;de&#xa0;registro&#xa0;do&#xa0;dispositivo.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Controle remoto</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Recusar</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Ferramentas remotas</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Acesso remoto</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Mensagem</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>Resta %n segundo para responder</numerusform>
            <numerusform>Restam %n segundos para responder</numerusform>
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
        <translation>Esqueceu o usuário ou a senha?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>Fazer login</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorização necessária</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Para continuar, faça login com sua&#xa0;conta&#xa0;online&#xa0;do&#xa0;Brisel&#xa0;Tavik</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Faça login com sua conta do Brisel&#xa0;Tavik</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Senha</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorização necessária</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Insira suas credenciais para continuar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Administrador do computador (uma conta do Windows com privilégios de administrador)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Senha personalizada do Ostrel</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>Domínio:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Inserir senha</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Senha de administrador</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Senha personalizada</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Mensagem</translation>
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
        <translation>Erro</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar de novo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: Opções</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
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
        <translation>Autenticação</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Mostrar ícone na área de notificação da barra de tarefas</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Baixar e instalar automaticamente as atualizações do programa</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>Desativar o ZENT Agent...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – Mensagem</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>Mensagem</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>Aguarde</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Dimi&amp;nuir</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rolar até aqui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borda esquerda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borda direita</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página à esquerda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página acima</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página à direita</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abaixo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rolar para a esquerda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rolar para cima</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rolar para a direita</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rolar para baixo</translation>
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
        <translation>Inserir caractere de controle Unicode</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar endereço do lin&amp;k</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Reinicialização</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Adiar</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 minutos</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 minutos</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 horas</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>Lembrar-me em</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Desligar agora</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Motivo da reinicialização</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>Motivo do desligamento</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Controle remoto da Corvane</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Ferramentas remotas</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Transferência de arquivos</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>Encerrar sessão</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Controle remoto</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Usuário</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Arquivo carregado</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Upload interrompido</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Upload cancelado</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Arquivo baixado</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download interrompido</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Download cancelado</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Pasta carregada</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Pasta baixada</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Arquivo excluído</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Arquivo renomeado</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Pasta excluída</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Pasta renomeada</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Pasta criada</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>Processo encerrado</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Serviço iniciado</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Serviço parado</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Serviço reiniciado</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Serviço pausado</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Serviço retomado</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Sessão suspensa</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Sessão retomada</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>Ocultar janela</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>Mostrar ou ocultar o log de atividades</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>Log de atividades</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>Encerrar sessão</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessão iniciada: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Sessão encerrada: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: Enviar chamado</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Preencha os campos abaixo e descreva seu problema em detalhes:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Resumo do problema</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Departamento</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Nível de prioridade</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Detalhes do problema</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Incluir dados do dispositivo (marca, modelo, número de série, usuário conectado, domínio/grupo de trabalho)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Observação: a empresa, o nome do dispositivo e o proprietário são incluídos por padrão.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Obrigatório</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Obrigatório (máx. %1 caracteres)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Enviar chamado</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Chamado não enviado</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Deseja descartar todas as alterações?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Fechar</translation>
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
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorização necessária</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>É necessário inserir a senha personalizada do Zent
para continuar</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Insira a senha personalizada do Zent</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Inserir senha</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Senha</translation>
    </message>
</context>
</TS>
