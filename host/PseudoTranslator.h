#pragma once

#include <QTranslator>

/// Turns each text into a longer, accented one that can still be read. A text that stays plain English is not
/// translatable, one that is cut has no room for other languages.
class PseudoTranslator final : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    bool isEmpty() const override;
    QString translate(const char* context, const char* sourceText, const char* disambiguation, int n) const override;
};
