#include "Surroundings.h"

#include <QFile>

void prepareSurroundings(const QString& language, float ratio)
{
    // An installed program may be far from the sources; it takes the machine's fonts.
    if (QFile::exists(QStringLiteral(FONTS)))
        qputenv("FONTCONFIG_FILE", FONTS);
    const QByteArray fontLanguage = language.isEmpty() ? qgetenv("LANGUAGE") : language.toUtf8();
    if (!fontLanguage.isEmpty())
        qputenv("FC_LANG", fontLanguage.left(2));
    // The offscreen platform takes 100 dpi by itself.
    const bool hasOwnResolution = !qgetenv("QT_QPA_PLATFORM").startsWith("offscreen") && ratio == 1.0F;
    if (hasOwnResolution)
        return;
    if (qEnvironmentVariableIsEmpty("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", QByteArray::number(96.0 * static_cast<double>(ratio), 'f', 0));
    // By itself Qt 6 would scale the windows to that resolution, in addition to the ratio.
    if (qEnvironmentVariableIsEmpty("QT_ENABLE_HIGHDPI_SCALING"))
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
}
