#include "BrandingStrings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryFile>

#include <new>

namespace {
/// A file's content without a byte order mark, of which QSettings would make a part of the first key, and in UTF-8.
/// What is not valid UTF-8 is Latin-1, unless it has a mark.
QByteArray inUtf8(const QByteArray& content)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    if (content.startsWith(byteOrderMark))
        return content.mid(byteOrderMark.size());
    const bool isUtf8 = QString::fromUtf8(content.constData(), content.size()).toUtf8() == content;
    return isUtf8 ? content : QString::fromLatin1(content.constData(), content.size()).toUtf8();
}

void readFile(BrandingStrings& strings, const QString& path)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // QSettings would deserialise @Variant(…), which can allocate any amount. A second @ makes it plain text. What has
    // to be changed is changed in a copy, as the file belongs to the deployment.
    const QByteArray variant("@Variant(");
    const QByteArray readable = inUtf8(content).replace(variant, '@' + variant);
    QTemporaryFile copy;
    if (readable != content && (!copy.open() || copy.write(readable) < 0 || !copy.flush()))
        return;

    QSettings settings(readable == content ? path : copy.fileName(), QSettings::IniFormat);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Without a codec it reads Latin-1; from Qt 6 on it reads nothing but UTF-8.
    settings.setIniCodec("UTF-8");
#endif

    const auto read = [&](const char* key, QString& field) {
        const QString value = settings.value(QLatin1String(key), QString()).toString();
        if (!value.isEmpty() && !value.startsWith(QLatin1String(variant)))
            field = value;
    };
    read("companyName", strings.companyName);
    read("agentName", strings.agentName);
    read("supportWebsite", strings.supportWebsite);
    read("supportEmail", strings.supportEmail);
    read("supportPhone", strings.supportPhone);
    strings.productFullName = strings.companyName + QLatin1Char(' ') + strings.agentName;
}

void readDirectory(BrandingStrings& strings, const QString& directory)
{
    const QString path = directory + QDir::separator() + QStringLiteral("oem.strings");
    qDebug().nospace() << "Try to find oem.strings in " << path;
    if (QFile::exists(path)) {
        try {
            readFile(strings, path);
        } catch (const std::bad_alloc&) {
            // A serialised object written with escapes is not recognised above; keep what was read before it.
        }
        qDebug("OEM strings loaded");
    } else {
        qDebug().nospace() << "OEM strings file does not exists! " << path;
    }
}
} // namespace

BrandingStrings::BrandingStrings(const QString& directory)
{
    if (!directory.isEmpty())
        readDirectory(*this, directory);

    QDir directoryOfAllUsers(QProcessEnvironment::systemEnvironment().value(QStringLiteral("ALLUSERSPROFILE")));
    directoryOfAllUsers.cd(vendorName + productDirectory);
    dataDirectory = directoryOfAllUsers.path();
}

const BrandingStrings& brandingStrings()
{
    // Without an application nobody knows the directory of the executable.
    static const BrandingStrings strings(QCoreApplication::instance() ? QCoreApplication::applicationDirPath()
                                                                      : QString());
    return strings;
}
