<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Brisel Tavik 정보</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Update now</source>
        <extracomment>Starts the update of the agent</extracomment>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>버전:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>지원 전화: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>지원 이메일: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>모든 권리 보유</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>서버:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>정보 없음</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>마지막 통신: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>지원 웹사이트: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>정보</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik 메시지</translation>
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
        <translation>성공</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik 활성화</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>장치 등록 이메일에 있는 호스트, 포트, 토큰을 입력하고 [등록] 버튼을 눌러 Tavik을&#xa0;등록해야&#xa0;합니다.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>이 장치를 관리하려면
Tavik을 등록해야 합니다</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>등록이 필요합니다</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>등록</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Label of the field for the name of the server</extracomment>
        <translation>호스트:</translation>
    </message>
    <message>
        <source>Token:</source>
        <extracomment>Label of the field for the enrollment token, a row of 32 letters and digits</extracomment>
        <translation>토큰:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Label of the field for the number of the server&apos;s network port</extracomment>
        <translation>포트:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>장치 등록 이메일의 호스트, 포트, 토큰을 입력하십시오.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>원격 제어</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>허용</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>거부</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>원격 도구</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>원격 액세스</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>메시지</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>응답 시간이 %n초 남았습니다</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik 로그인</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>로그인 정보를 잊으셨습니까?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>인증이 필요합니다</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>계속하려면 Brisel&#xa0;Tavik 온라인 계정으로 로그인해야 합니다</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Brisel&#xa0;Tavik 계정으로 로그인하십시오</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>사용자:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>암호</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>대화 상자</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>인증이 필요합니다</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>계속하려면 자격 증명을 입력하십시오</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>컴퓨터 관리자(관리자 권한이 있는 Windows 계정)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Ostrel 사용자 지정 암호</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>도메인:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>사용자:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>암호 입력</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>관리자 암호</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>사용자 지정 암호</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik 메시지</translation>
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
        <translation>오류</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: 옵션</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>호스트:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>포트:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>인증</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>사용자:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>작업 표시줄의 알림 영역에 아이콘 표시</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>프로그램 업데이트를 자동으로 다운로드하여 설치</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>ZENT Agent 비활성화...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik 메시지</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>메시지</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>잠시 기다려 주십시오</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>모두 선택(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>값 늘리기(&amp;I)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>값 줄이기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>여기로 스크롤</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>왼쪽 끝</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>맨 위</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>오른쪽 끝</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>맨 아래</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>한 페이지 왼쪽</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>한 페이지 위로</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>한 페이지 오른쪽</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>한 페이지 아래로</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>아래로 스크롤</translation>
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
        <translation>유니코드 제어 문자 삽입</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>링크 주소 복사(&amp;L)</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik 다시 시작</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>지금 다시 시작</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10분 후</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30분 후</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1시간 후</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4시간 후</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>다시 알림</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>지금 시스템 종료</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>다시 시작해야 하는 이유</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>시스템을 종료해야 하는 이유</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Corvane 원격 제어</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>원격 도구 세션</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>파일 전송 세션</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>세션 종료</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>원격 제어 세션</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>파일을 업로드했습니다</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>업로드가 중단되었습니다</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>업로드가 취소되었습니다</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>파일을 다운로드했습니다</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>다운로드가 중단되었습니다</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>다운로드가 취소되었습니다</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>폴더를 업로드했습니다</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>폴더를 다운로드했습니다</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>파일을 삭제했습니다</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>파일 이름을 변경했습니다</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>폴더를 삭제했습니다</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>폴더 이름을 변경했습니다</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>폴더를 만들었습니다</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>프로세스를 종료했습니다</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>서비스를 시작했습니다</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>서비스를 중지했습니다</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>서비스를 다시 시작했습니다</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>서비스를 일시 중지했습니다</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>서비스를 재개했습니다</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>세션을 일시 중단했습니다</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>세션을 재개했습니다</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>창 숨기기</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>활동 로그 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>활동 로그</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>세션 종료</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>세션이 시작되었습니다: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>세션이 종료되었습니다: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: 티켓 제출</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>아래 항목을 작성하고 문제를 자세히 설명하십시오:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>문제 요약</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>부서</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>문제 세부 정보</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>장치 데이터 포함(브랜드, 모델, 일련번호, 로그인한 사용자, 도메인/작업 그룹)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>참고: 회사, 장치 이름, 소유자는 기본적으로 포함됩니다.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>제출</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>필수</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>필수(최대 %1자)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>티켓 제출</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>티켓이 제출되지 않았습니다</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>모든 변경 내용을 버리시겠습니까?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>확인</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik 로그인</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>인증이 필요합니다</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>계속하려면 Zent 사용자 지정 암호를
입력해야 합니다</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Zent 사용자 지정 암호를 입력하십시오</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>암호 입력</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>암호</translation>
    </message>
</context>
</TS>
