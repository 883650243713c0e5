#include "loadTranslation.h"

#include "UserInterfaceLanguage.h"

#include <QTranslator>

bool loadTranslation(QTranslator& translator, const QString& prefix, const QString& defaultLanguage)
{
    const QString language = QString::fromStdString(userInterfaceLanguage());
    bool loaded = translator.load(prefix + language);
    if (!loaded && language != defaultLanguage)
        loaded = translator.load(prefix + defaultLanguage);
    return loaded;
}
