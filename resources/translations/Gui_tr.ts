<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Brisel Tavik About</source>
        <translation>Brisel Tavik hakkında</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Update now</source>
        <extracomment>Starts the update of the agent</extracomment>
        <translation>Şimdi güncelleştir</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Sürüm:</translation>
    </message>
    <message>
        <source>Support phone: </source>
        <translation>Destek telefonu: </translation>
    </message>
    <message>
        <source>Support email: </source>
        <translation>Destek e-postası: </translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>Tüm hakları saklıdır</translation>
    </message>
    <message>
        <source>Server:</source>
        <extracomment>The management server of the agent</extracomment>
        <translation>Sunucu:</translation>
    </message>
    <message>
        <source>n/a</source>
        <extracomment>Not available</extracomment>
        <translation>bilgi yok</translation>
    </message>
    <message>
        <source>Last communication session: </source>
        <translation>Son iletişim: </translation>
    </message>
    <message>
        <source>Support web-site: </source>
        <translation>Destek web sitesi: </translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>AcceptMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – İleti</translation>
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
        <translation>Başarılı</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>ActivationDialog</name>
    <message>
        <source>Brisel Tavik Activation</source>
        <translation>Brisel Tavik – Etkinleştirme</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>You need to enroll Tavik by providing host, port and token from Device Enrollment email and pressing &quot;Enroll&quot; button.</source>
        <translation>Tavik’i kaydetmek için cihaz kaydı e‑postasındaki sunucu, port ve belirteç bilgilerini girip “Cihazı&#xa0;kaydet” düğmesine basmanız gerekir.</translation>
    </message>
    <message>
        <source>Tavik needs to be enrolled
in order to manage this device</source>
        <translation>Bu cihazı yönetmek için
Tavik’in kaydedilmesi gerekir</translation>
    </message>
    <message>
        <source>Enrollment Required</source>
        <translation>Kayıt gerekiyor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Enroll</source>
        <extracomment>Both the kind of dialog in its caption and the button that enrolls the device</extracomment>
        <translation>Cihazı kaydet</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Label of the field for the name of the server</extracomment>
        <translation>Sunucu:</translation>
    </message>
    <message>
        <source>Token:</source>
        <extracomment>Label of the field for the enrollment token, a row of 32 letters and digits</extracomment>
        <translation>Belirteç:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Label of the field for the number of the server&apos;s network port</extracomment>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Please set up host, port and token from Device Enrollment email.</source>
        <translation>Lütfen cihaz kaydı e‑postasındaki sunucu,&#xa0;port&#xa0;ve&#xa0;belirteç&#xa0;bilgilerini&#xa0;girin.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>ApproveRemoteConnectionDialog</name>
    <message>
        <source>Remote control</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Uzaktan denetim</translation>
    </message>
    <message>
        <source>Allow</source>
        <extracomment>Button: lets the remote person in. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>İzin ver</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button: refuses the remote person, the opposite of &quot;Allow&quot;. &quot;(12)&quot; may follow, so that the text itself has no &quot;(&quot;</extracomment>
        <translation>Reddet</translation>
    </message>
    <message>
        <source>Remote tools</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Uzak araçlar</translation>
    </message>
    <message>
        <source>Remote access</source>
        <extracomment>Kind of remote session in a window title, after the name of the person who asks for it</extracomment>
        <translation>Uzaktan erişim</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>İleti</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) left to answer</source>
        <translation>
            <numerusform>Yanıtlamak için %n saniye kaldı</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuthorizationDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Oturum açma</translation>
    </message>
    <message>
        <source>Forgot username or password?</source>
        <extracomment>Text of a link</extracomment>
        <translation>Oturum bilgilerinizi mi unuttunuz?</translation>
    </message>
    <message>
        <source>Login</source>
        <extracomment>Both the kind of dialog in its caption and the button that logs in</extracomment>
        <translation>Oturum aç</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Yetkilendirme gerekiyor</translation>
    </message>
    <message>
        <source>You need to login with your Brisel Tavik online account in order to continue</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Devam etmek için Brisel&#xa0;Tavik çevrimiçi hesabınızla oturum&#xa0;açmanız&#xa0;gerekir</translation>
    </message>
    <message>
        <source>Please login with your Brisel Tavik</source>
        <extracomment>The line may break anywhere but inside the product name: join its words by a no-break space</extracomment>
        <translation>Lütfen Brisel&#xa0;Tavik hesabınızla oturum açın</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Kullanıcı:</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Parola</translation>
    </message>
</context>
<context>
    <name>EnterPasswordDialog</name>
    <message>
        <source>Dialog</source>
        <translation>İletişim kutusu</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Yetkilendirme gerekiyor</translation>
    </message>
    <message>
        <source>Please enter your credentials in order to continue</source>
        <translation>Devam etmek için lütfen kimlik bilgilerinizi girin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Computer Administrator (A Windows account with administrative privileges)</source>
        <translation>Bilgisayar yöneticisi (yönetici ayrıcalıklarına sahip bir Windows hesabı)</translation>
    </message>
    <message>
        <source>Ostrel Custom Password</source>
        <translation>Ostrel özel parolası</translation>
    </message>
    <message>
        <source>Domain:</source>
        <extracomment>Label of the field for the Windows domain</extracomment>
        <translation>Etki alanı:</translation>
    </message>
    <message>
        <source>Login:</source>
        <extracomment>Label of the field for the administrator&apos;s account name</extracomment>
        <translation>Kullanıcı:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Parola girişi</translation>
    </message>
    <message>
        <source>Administrator password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Yönetici parolası</translation>
    </message>
    <message>
        <source>Custom password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Özel parola</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – İleti</translation>
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
        <translation>Hata</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>OptionDialog</name>
    <message>
        <source>BRISEL Tavik: Options</source>
        <translation>BRISEL Tavik: Seçenekler</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy ayarları</translation>
    </message>
    <message>
        <source>Host:</source>
        <extracomment>Name or address of the proxy server</extracomment>
        <translation>Sunucu:</translation>
    </message>
    <message>
        <source>Port:</source>
        <extracomment>Port number of the proxy server</extracomment>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Kimlik doğrulama</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>Kullanıcı:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Show tray icon on the taskbar</source>
        <translation>Görev çubuğunun bildirim alanında simgeyi göster</translation>
    </message>
    <message>
        <source>Automatically download and install program updates</source>
        <translation>Program güncelleştirmelerini otomatik olarak indir ve yükle</translation>
    </message>
    <message>
        <source>Deactivate ZENT Agent...</source>
        <translation>ZENT Agent’ı devre dışı bırak...</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Brisel Tavik Message</source>
        <translation>Brisel Tavik – İleti</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Stands in for the message until the host sets one</extracomment>
        <translation>İleti</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Name for screen readers of the turning spinner and of the number in it</extracomment>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Please wait</source>
        <extracomment>Description of the turning spinner for screen readers</extracomment>
        <translation>Lütfen bekleyin</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Artır</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>A&amp;zalt</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Kes</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Discard</source>
        <translation>Değişikliklerden vazgeç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Buraya kaydır</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Sol kenar</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En üst</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Sağ kenar</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En alt</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Bir sayfa sola</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Bir sayfa yukarı</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Bir sayfa sağa</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Bir sayfa aşağı</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Sola kaydır</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Yukarı kaydır</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Sağa kaydır</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Aşağı kaydır</translation>
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
        <translation>Unicode denetim karakteri ekle</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Kes</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Bağlantı adresini kopyala</translation>
    </message>
</context>
<context>
    <name>RebootDialog</name>
    <message>
        <source>Tavik Reboot</source>
        <translation>Tavik – Yeniden başlatma</translation>
    </message>
    <message>
        <source>Reboot now</source>
        <translation>Yeniden başlat</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Ertele</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>10 dakika sonra</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>30 dakika sonra</translation>
    </message>
    <message>
        <source>1 hour</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>1 saat sonra</translation>
    </message>
    <message>
        <source>4 hours</source>
        <extracomment>Period after which the reminder comes</extracomment>
        <translation>4 saat sonra</translation>
    </message>
    <message>
        <source>Remind me in</source>
        <extracomment>Stands before a list of periods such as &quot;10 minutes&quot;</extracomment>
        <translation>Tekrar hatırlat</translation>
    </message>
    <message>
        <source>Shutdown now</source>
        <translation>Bilgisayarı kapat</translation>
    </message>
    <message>
        <source>Reason for the restart</source>
        <translation>Yeniden başlatma nedeni</translation>
    </message>
    <message>
        <source>Reason for the shutdown</source>
        <extracomment>Name of a text for screen readers</extracomment>
        <translation>Bilgisayarı kapatma nedeni</translation>
    </message>
</context>
<context>
    <name>RemoteConnectionDialog</name>
    <message>
        <source>Remote Control by Corvane</source>
        <translation>Corvane uzaktan denetimi</translation>
    </message>
    <message>
        <source>Remote Tool Session</source>
        <translation>Uzak araçlar</translation>
    </message>
    <message>
        <source>File Transfer Session</source>
        <translation>Dosya aktarımı</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>End session</source>
        <extracomment>Button: stops the session. May be shortened</extracomment>
        <translation>Oturumu bitir</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: closes the area of an ended session</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Remote Control Session</source>
        <translation>Uzaktan denetim</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>File uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Dosya karşıya yüklendi</translation>
    </message>
    <message>
        <source>Upload aborted</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Yükleme kesildi</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Yükleme iptal edildi</translation>
    </message>
    <message>
        <source>File downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Dosya indirildi</translation>
    </message>
    <message>
        <source>Download aborted</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>İndirme kesildi</translation>
    </message>
    <message>
        <source>Download cancelled</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>İndirme iptal edildi</translation>
    </message>
    <message>
        <source>Folder uploaded</source>
        <extracomment>Upload: from the technician to this computer</extracomment>
        <translation>Klasör karşıya yüklendi</translation>
    </message>
    <message>
        <source>Folder downloaded</source>
        <extracomment>Download: from this computer to the technician</extracomment>
        <translation>Klasör indirildi</translation>
    </message>
    <message>
        <source>File deleted</source>
        <translation>Dosya silindi</translation>
    </message>
    <message>
        <source>File renamed</source>
        <translation>Dosya yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Folder deleted</source>
        <translation>Klasör silindi</translation>
    </message>
    <message>
        <source>Folder renamed</source>
        <translation>Klasör yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Folder created</source>
        <translation>Klasör oluşturuldu</translation>
    </message>
    <message>
        <source>Process ended</source>
        <translation>İşlem sonlandırıldı</translation>
    </message>
    <message>
        <source>Service started</source>
        <translation>Hizmet başlatıldı</translation>
    </message>
    <message>
        <source>Service stopped</source>
        <translation>Hizmet durduruldu</translation>
    </message>
    <message>
        <source>Service restarted</source>
        <translation>Hizmet yeniden başlatıldı</translation>
    </message>
    <message>
        <source>Service paused</source>
        <translation>Hizmet duraklatıldı</translation>
    </message>
    <message>
        <source>Service resumed</source>
        <translation>Hizmet sürdürüldü</translation>
    </message>
    <message>
        <source>Session suspended</source>
        <translation>Oturum askıya alındı</translation>
    </message>
    <message>
        <source>Session resumed</source>
        <translation>Oturum sürdürüldü</translation>
    </message>
    <message>
        <source>Hide window</source>
        <extracomment>Name of the close button for screen readers</extracomment>
        <translation>Pencereyi gizle</translation>
    </message>
    <message>
        <source>Show or hide the activity log</source>
        <extracomment>Of an arrow, for screen readers</extracomment>
        <translation>Etkinlik günlüğünü göster veya gizle</translation>
    </message>
    <message>
        <source>Activity log</source>
        <extracomment>What is done on this computer during the session</extracomment>
        <translation>Etkinlik günlüğü</translation>
    </message>
    <message>
        <source>End session</source>
        <comment>in full</comment>
        <extracomment>Name of the button for screen readers, never shortened</extracomment>
        <translation>Oturumu bitir</translation>
    </message>
    <message>
        <source>Session started: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Oturum başladı: %1</translation>
    </message>
    <message>
        <source>Session ended: %1</source>
        <extracomment>Spoken by screen readers; %1 is a person&apos;s name and the kind of session</extracomment>
        <translation>Oturum sona erdi: %1</translation>
    </message>
</context>
<context>
    <name>ServiceDeskTicketDialog</name>
    <message>
        <source>Brisel Tavik: Submit Ticket</source>
        <translation>Brisel Tavik: Talep gönderme</translation>
    </message>
    <message>
        <source>Tavik</source>
        <extracomment>Name of the agent; stays as it is</extracomment>
        <translation>Tavik</translation>
    </message>
    <message>
        <source>Please fill in the fields below and describe details of your issue:</source>
        <translation>Lütfen aşağıdaki alanları doldurun ve sorununuzu ayrıntılarıyla açıklayın:</translation>
    </message>
    <message>
        <source>Issue Summary</source>
        <translation>Sorunun özeti</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>Departman</translation>
    </message>
    <message>
        <source>Priority Level</source>
        <translation>Öncelik düzeyi</translation>
    </message>
    <message>
        <source>Issue Details</source>
        <translation>Sorunun ayrıntıları</translation>
    </message>
    <message>
        <source>Include device data (brand, model, serial number, logged on user, domain/workgroup)</source>
        <translation>Cihaz verilerini ekle (marka, model, seri numarası, oturum açmış kullanıcı, etki&#xa0;alanı&#xa0;veya&#xa0;çalışma&#xa0;grubu)</translation>
    </message>
    <message>
        <source>Note: Company, Device Name and Owner are included by default.</source>
        <translation>Not: Şirket, cihaz adı ve sahibi varsayılan olarak eklenir.</translation>
    </message>
    <message>
        <source>Submit</source>
        <extracomment>Sends the ticket</extracomment>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Goes back to the ticket</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Required</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Zorunlu</translation>
    </message>
    <message>
        <source>Required (max. %1 chars)</source>
        <extracomment>Placeholder of an empty field that must be filled in</extracomment>
        <translation>Zorunlu (en fazla %1 karakter)</translation>
    </message>
    <message>
        <source>Submit ticket</source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Talep gönderme</translation>
    </message>
    <message>
        <source>Ticket not submitted</source>
        <translation>Talep gönderilmedi</translation>
    </message>
    <message>
        <source>Do you want to discard all changes?</source>
        <translation>Tüm değişikliklerden vazgeçilsin mi?</translation>
    </message>
    <message>
        <source>Ok</source>
        <extracomment>Discards the ticket</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Name for screen readers</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>ZentPasswordDialog</name>
    <message>
        <source>Brisel Tavik Login</source>
        <translation>Brisel Tavik – Oturum açma</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Yetkilendirme gerekiyor</translation>
    </message>
    <message>
        <source>You need to enter Zent Custom Password
in order to continue</source>
        <translation>Devam etmek için
Zent özel parolasını girmeniz gerekir</translation>
    </message>
    <message>
        <source>Please enter Zent Custom Password</source>
        <translation>Lütfen Zent özel parolasını girin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Enter password</source>
        <extracomment>Kind of dialog, at the right of the caption</extracomment>
        <translation>Parola girişi</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Name of a field for screen readers</extracomment>
        <translation>Parola</translation>
    </message>
</context>
</TS>
