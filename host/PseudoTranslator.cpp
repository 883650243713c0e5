#include "PseudoTranslator.h"

namespace {
const QString plainLetters = QStringLiteral("ACEGINOSUYacdeghiklnorstuyz");
const QString accentedLetters = QStringLiteral("ÅÇÉĜÎÑÖŠÛÝåçđéĝĥîķļñöřšţûýž");

QChar accented(QChar letter)
{
    const int position = plainLetters.indexOf(letter);
    return position < 0 ? letter : accentedLetters.at(position);
}

/// How many more characters a translation of @p length characters may need: 30 %, at least one.
int growth(int length)
{
    return (length * 3 + 9) / 10;
}
} // namespace

bool PseudoTranslator::isEmpty() const
{
    return false;
}

QString PseudoTranslator::translate(const char*, const char* sourceText, const char*, int) const
{
    const QString source = QString::fromUtf8(sourceText);
    QString text;
    for (int i = 0; i < source.size(); ++i) {
        const bool isPlaceholder = i > 0 && source.at(i - 1) == QLatin1Char('%');
        text += isPlaceholder ? source.at(i) : accented(source.at(i));
    }
    return text.isEmpty() ? text : text + QString(growth(source.size()), QLatin1Char('~'));
}
