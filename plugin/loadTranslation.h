#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QTranslator;
QT_END_NAMESPACE

/// Loads the file @p prefix + language + ".qm" for the language of the desktop, or that of @p defaultLanguage when
/// there is none. Returns whether one was loaded.
bool loadTranslation(QTranslator& translator, const QString& prefix, const QString& defaultLanguage);
