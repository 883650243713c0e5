#include <GuiInterface.h>
#include <IAcceptMessageDialog.h>
#include <IErrorMessageDialog.h>

#include <QApplication>
#include <QPluginLoader>
#include <QPushButton>
#include <QScreen>
#include <QTextStream>
#include <QTimer>

/// Says that a download failed, and that it worked when the person had it tried again.
class Agent : public QObject {
    Q_OBJECT

public:
    explicit Agent(GuiInterface& root) : gui(root)
    {
        failure = gui.getErrorMessageDialogInstance();
        gui.attachErrorMessageDialogEventHandler(
            this, SLOT(onFailureEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent)));
        success = gui.getAcceptMessageDialogInstance();
        gui.attachAcceptMessageDialogEventHandler(
            this, SLOT(onSuccessEvent(IAcceptMessageDialog*, IAcceptMessageDialog::TEvent)));
    }

    void start()
    {
        failure->setMessage(QStringLiteral("The download failed."));
        failure->show();
    }

public Q_SLOTS:
    void onFailureEvent(IErrorMessageDialog* dialog, IErrorMessageDialog::TEvent event)
    {
        // A dialog stays on screen until the host hides or deletes it.
        dialog->hide();
        if (event == IErrorMessageDialog::evTryAgain) {
            success->setMessage(QStringLiteral("The download is complete."));
            success->show();
        } else {
            leave(1);
        }
    }

    void onSuccessEvent(IAcceptMessageDialog* dialog, IAcceptMessageDialog::TEvent)
    {
        dialog->hide();
        leave(0);
    }

private:
    void leave(int status)
    {
        gui.deleteErrorMessageDialogInstance();
        gui.deleteAcceptMessageDialogInstance();
        QCoreApplication::exit(status);
    }

    GuiInterface& gui;
    IErrorMessageDialog* failure = nullptr;
    IAcceptMessageDialog* success = nullptr;
};

/// Clicks as a test does: dialogs and their widgets are found by their object names.
void click(const char* dialog, const char* button)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(dialog) && window->isVisible())
            window->findChild<QPushButton*>(QLatin1String(button))->click();
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // Between two dialogs no window is open, which does not end the agent.
    QApplication::setQuitOnLastWindowClosed(false);

    QPluginLoader loader(QCoreApplication::applicationDirPath() + QStringLiteral("/Gui"));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    if (!gui) {
        QTextStream(stderr) << loader.errorString() << '\n';
        return 2;
    }
    // Where Qt itself scales what it draws, the dialogs must not be scaled a second time.
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (qFuzzyCompare(screen->devicePixelRatio(), 1.0))
        gui->setRatio(static_cast<float>(screen->logicalDotsPerInch() / 96.0));

    Agent agent(*gui);
    agent.start();
    if (QCoreApplication::arguments().contains(QStringLiteral("--demo"))) {
        QTimer::singleShot(0, [] { click("ErrorMessageDialog", "btnMessageInnerButton"); });
        QTimer::singleShot(0, [] { click("AcceptMessageDialog", "btnMessageInnerButton"); });
    }
    return QApplication::exec();
}

#include "main.moc"
