#include "BrandingStrings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>

#include <new>

namespace {
// A noncharacter, which no text has.
constexpr QChar mark(0xFDD0);

/// A file's content without a byte order mark, of which QSettings would make a part of the first key. What is not valid
/// UTF-8 is Latin-1, unless it has a mark.
QString decoded(const QByteArray& content)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    if (content.startsWith(byteOrderMark))
        return QString::fromUtf8(content.mid(byteOrderMark.size()));
    const QString text = QString::fromUtf8(content.constData(), content.size());
    return text.toUtf8() == content ? text : QString::fromLatin1(content.constData(), content.size());
}

/// The content with a mark before all values that QSettings might deserialise, which can allocate any amount. It does
/// so with @Variant(…) and @DateTime(…) at the beginning of a value or of a list's element, where quotes and escapes
/// can hide each of these characters.
QString marked(QString content)
{
    const QRegularExpression suspect(QStringLiteral(R"([=,][ \t]*+\K(?=[" \t]*+(?:\\|@["\\DV])))"));
    return content.replace(suspect, mark);
}

void readFile(BrandingStrings& strings, const QString& path)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // What has to be changed for QSettings is changed in a copy, as the file belongs to the deployment.
    const QByteArray readable = marked(decoded(content)).toUtf8();
    QTemporaryFile copy;
    if (readable != content && (!copy.open() || copy.write(readable) < 0 || !copy.flush()))
        return;

    QSettings settings(readable == content ? path : copy.fileName(), QSettings::IniFormat);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Without a codec it reads Latin-1; from Qt 6 on it reads nothing but UTF-8.
    settings.setIniCodec("UTF-8");
#endif

    const auto read = [&](const char* key, QString& field) {
        QString value = settings.value(QLatin1String(key), QString()).toString();
        const bool isObject =
            value.startsWith(mark + QLatin1String("@Variant(")) || value.startsWith(mark + QLatin1String("@DateTime("));
        if (!isObject && !value.remove(mark).isEmpty())
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
            // A file that does not fit into memory changes nothing.
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
