#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QTranslator;
QT_END_NAMESPACE

/// Loads the file @p prefix + language + ".qm" for the language of the desktop, or that of @p defaultLanguage when
/// there is none. Returns whether one was loaded.
bool loadTranslation(QTranslator& translator, const QString& prefix, const QString& defaultLanguage);

/// Loads Qt's own words, such as those of a text field's menu, in the language of the desktop: from "translations"
/// beside the host program or from where Qt is installed. None are loaded when there is no @p prefix + language +
/// ".qm", so that Qt speaks no language that the rest does not speak. Returns whether they were loaded.
bool loadQtTranslation(QTranslator& translator, const QString& prefix);
