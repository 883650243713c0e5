#pragma once

#include "GuiInterface.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QPluginLoader>

#include <cstring>

/// The plugin's root object in a fuzz target, which has no main() of its own.
inline GuiInterface& fuzzedGui()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    // Never destroyed: libFuzzer leaves through exit(), when the thread's data that windows need is gone already.
    static auto* const application = new QApplication(argc, argv);
    Q_UNUSED(application)
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    QApplication::setQuitOnLastWindowClosed(false);
    static QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* root = qobject_cast<GuiInterface*>(loader.instance());
    if (!root)
        qFatal("%s", qPrintable(loader.errorString()));
    return *root;
}

/// Half of the inputs are best seen as text, the others as anything a QString may hold: the first byte decides.
inline QString fuzzedText(const uint8_t* data, size_t size)
{
    if (size == 0)
        return QString();
    const auto* bytes = reinterpret_cast<const char*>(data + 1);
    const int count = static_cast<int>(size - 1);
    if (data[0] != 0xFF)
        return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QString text(count / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes, static_cast<size_t>(text.size()) * sizeof(QChar));
    return text;
}

/// Ends the fuzzing when what must hold does not.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}
