#include "Surroundings.h"

#include <QFile>

void prepareSurroundings(const QString& language)
{
    // An installed program may be far from the sources; it takes the machine's fonts.
    if (QFile::exists(QStringLiteral(FONTS)))
        qputenv("FONTCONFIG_FILE", FONTS);
    const QByteArray fontLanguage = language.isEmpty() ? qgetenv("LANGUAGE") : language.toUtf8();
    if (!fontLanguage.isEmpty())
        qputenv("FC_LANG", fontLanguage.left(2));
    // The offscreen platform takes 100 dpi by itself.
    if (qgetenv("QT_QPA_PLATFORM").startsWith("offscreen") && qEnvironmentVariableIsEmpty("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
}
