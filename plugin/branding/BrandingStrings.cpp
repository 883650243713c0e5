#include "BrandingStrings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryFile>
#include <QTextCodec>

#include <new>

namespace {
bool isUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

void readFile(BrandingStrings& strings, const QString& path)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // QSettings would deserialise @Variant(…), which can allocate any amount. A second @ makes it plain text; that is
    // put into a copy, as the file belongs to the deployment.
    const QByteArray variant("@Variant(");
    QTemporaryFile copy;
    const bool harmless = !content.contains(variant);
    if (!harmless
        && (!copy.open() || copy.write(QByteArray(content).replace(variant, '@' + variant)) < 0 || !copy.flush()))
        return;

    QSettings settings(harmless ? path : copy.fileName(), QSettings::IniFormat);
    // Without a codec QSettings takes the bytes for Latin-1, and few editors write that today.
    if (isUtf8(content))
        settings.setIniCodec("UTF-8");

    const auto read = [&](const char* key, QString& field) {
        QString value = settings.value(QLatin1String(key), QString()).toString();
        // QSettings takes the bytes of a byte order mark before the first key for a part of that key.
        if (value.isEmpty())
            value = settings.value(QLatin1String("\xEF\xBB\xBF") + QLatin1String(key), QString()).toString();
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
