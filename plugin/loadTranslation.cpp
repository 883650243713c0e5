#include "loadTranslation.h"

#include "UserInterfaceLanguage.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {
QString desktopLanguage()
{
    return QString::fromStdString(userInterfaceLanguage());
}
} // namespace

bool loadTranslation(QTranslator& translator, const QString& prefix, const QString& defaultLanguage)
{
    const QString language = desktopLanguage();
    bool loaded = translator.load(prefix + language);
    if (!loaded && language != defaultLanguage)
        loaded = translator.load(prefix + defaultLanguage);
    return loaded;
}

bool loadQtTranslation(QTranslator& translator, const QString& prefix)
{
    const QString language = desktopLanguage();
    if (!QFile::exists(prefix + language + QLatin1String(".qm")))
        return false;
    // With the country: some of Qt's catalogues, such as qtbase_zh_CN, exist for one only.
    const QString name = QLatin1String("qtbase_") + QLocale(language).name();
    return translator.load(name, QCoreApplication::applicationDirPath() + QLatin1String("/translations"))
        || translator.load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
}
