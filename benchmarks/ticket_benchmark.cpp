// Measures how long the ticket form keeps a person waiting who pastes a megabyte into the issue details: from the key
// to the next idle event loop, and one letter typed at the end of it. Writes a Markdown table.

#include "GuiInterface.h"
#include "IServiceDeskTicketDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPluginLoader>
#include <QTextEdit>
#include <QTextStream>

namespace {
constexpr int megabyte = 1 << 20;

/// Milliseconds until the key is handled and its effects are painted.
qint64 timeOfKey(QTextEdit& field, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&field, &press);
    QCoreApplication::processEvents();
    field.grab();
    return timer.elapsed();
}

void measure(GuiInterface& gui, QTextStream& out, const QString& name, const QString& text, int limit)
{
    IServiceDeskTicketDialog* dialog = gui.getServiceDeskTicketDialogInstance();
    dialog->setIssueDetailsMaxLength(limit);
    dialog->show();
    auto& field = *dynamic_cast<QWidget&>(*dialog).findChild<QTextEdit*>(QStringLiteral("txIssueDetails"));
    field.setFocus();
    QCoreApplication::processEvents();

    QGuiApplication::clipboard()->setText(text);
    const qint64 paste = timeOfKey(field, Qt::Key_V, Qt::ControlModifier, QString());
    const int kept = dialog->getIssueDetails().size();
    field.moveCursor(QTextCursor::End);
    const qint64 letter = timeOfKey(field, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    out << "| " << name << " | " << limit << " | " << kept << " | " << paste << " | " << letter << " |\n";
    out.flush();
    gui.deleteServiceDeskTicketDialogInstance();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    if (!gui)
        qFatal("%s", qPrintable(loader.errorString()));

    QTextStream out(stdout);
    out << "| megabyte of | limit | kept | paste, ms | next letter, ms |\n|---|---|---|---|---|\n";
    const QString line = QString(79, QLatin1Char('a')) + QLatin1Char('\n');
    const QString words = QStringLiteral("lorem ipsum dolor sit amet ");
    for (const int limit : {0, 2000}) {
        measure(*gui, out, QStringLiteral("lines"), line.repeated(megabyte / line.size()), limit);
        measure(*gui, out, QStringLiteral("one paragraph"), words.repeated(megabyte / words.size()), limit);
        measure(*gui, out, QStringLiteral("one word"), QString(megabyte, QLatin1Char('x')), limit);
        if (limit > 0)
            measure(*gui, out, QStringLiteral("nothing but line breaks"), QString(megabyte, QLatin1Char(10)), limit);
        measure(*gui, out, QStringLiteral("short lines"),
                QStringLiteral("twenty characters..\n").repeated(megabyte / 20), limit);
    }
    return 0;
}
