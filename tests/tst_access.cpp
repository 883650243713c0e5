#include "GuiTest.h"
#include "IActivationDialog.h"
#include "IApproveRemoteConnectionDialog.h"
#include "IAuthorizationDialog.h"
#include "IEnterPasswordDialog.h"
#include "IOptionDialog.h"
#include "IProgressDialog.h"
#include "IRemoteConnectionDialog.h"
#include "IServiceDeskTicketDialog.h"
#include "IZentPasswordDialog.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTextEdit>

#include <functional>

/// The dialogs without eyes or without a mouse: what a screen reader finds, what it is spared, and where the keyboard
/// leads.
class AccessTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void everythingIsNamed_data();
    void everythingIsNamed();
    void picturesAreNamed_data();
    void picturesAreNamed();
    void secretsStayOnScreen_data();
    void secretsStayOnScreen();
    void tokenIsAnEditableField();
    void countdownIsQuiet();
    void countdownButtonCanBePressed();
    void progressIsQuiet();
    void logRowsArePlainText();
    void tabChain_data();
    void tabChain();
    void arrowKeysChoose();
    void closeButtonHasAKey_data();
    void closeButtonHasAKey();

private:
    static void addStates();
    IBaseDialog* showState();
};

namespace {
using Preparation = std::function<void(IBaseDialog*)>;

/// All that a screen reader can walk to from @p root.
void walk(QAccessibleInterface* root, const std::function<void(QAccessibleInterface*)>& visit)
{
    visit(root);
    for (int i = 0; i < root->childCount(); ++i) {
        if (QAccessibleInterface* part = root->child(i))
            walk(part, visit);
    }
}

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

QString describe(QAccessibleInterface* part)
{
    const QObject* object = part->object();
    return object ? object->objectName() + QLatin1Char(' ') + QLatin1String(object->metaObject()->className())
                  : QStringLiteral("part without object");
}

/// Everything that is told of @p part.
QString toldOf(QAccessibleInterface* part)
{
    QString told;
    for (const QAccessible::Text type :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help, QAccessible::Accelerator})
        told += part->text(type) + QLatin1Char('\n');
    if (QAccessibleTextInterface* text = part->textInterface())
        told += text->text(0, text->characterCount());
    return told;
}

/// What a screen reader would have been told since the recording began.
struct Announcement {
    QAccessible::Event type;
    QObject* object;
    QString told;
};
QVector<Announcement> announcements;

void recordAnnouncement(QAccessibleEvent* event)
{
    QString told;
    if (event->type() == QAccessible::NameChanged)
        told = event->accessibleInterface()->text(QAccessible::Name);
    else if (event->type() == QAccessible::TextInserted)
        told = static_cast<QAccessibleTextInsertEvent*>(event)->textInserted();
    else if (event->type() == QAccessible::TextUpdated)
        told = static_cast<QAccessibleTextUpdateEvent*>(event)->textInserted();
    announcements.append({event->type(), event->object(), told});
}

/// As long as it lives, Qt behaves as if a screen reader ran.
class Listener {
public:
    Listener() : previous(QAccessible::installUpdateHandler(recordAnnouncement))
    {
        announcements.clear();
        QAccessible::setActive(true);
    }

    ~Listener()
    {
        QAccessible::setActive(false);
        QAccessible::installUpdateHandler(previous);
    }

private:
    Q_DISABLE_COPY(Listener)

    const QAccessible::UpdateHandler previous;
};

/// Whether Tab must lead to @p widget. Of several radio buttons it leads to one, and the arrow keys to the others.
bool takesTab(const QWidget* widget)
{
    return !qobject_cast<const QRadioButton*>(widget) && widget->isVisible() && widget->isEnabled()
        && !widget->focusProxy() && (widget->focusPolicy() & Qt::TabFocus) != 0;
}

bool isInput(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget)
        || qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QTextEdit*>(widget);
}

/// The widgets in the order in which Tab leads to them.
QVector<QWidget*> tabChainOf(QWidget& top)
{
    QVector<QWidget*> order;
    for (;;) {
        QTest::keyClick(top.focusWidget() ? top.focusWidget() : &top, Qt::Key_Tab);
        QWidget* focused = top.focusWidget();
        if (!focused || order.contains(focused))
            return order;
        order.append(focused);
    }
}

QImage pictureOf(QWidget& top, const QWidget* widget)
{
    const QRect area(widget->mapTo(&top, QPoint(0, 0)), widget->size());
    return top.grab(area.adjusted(-3, -3, 3, 3)).toImage();
}
} // namespace

Q_DECLARE_METATYPE(Preparation)

void AccessTest::addStates()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Preparation>("prepare");
    const auto add = [](const char* row, const char* name, const Preparation& prepare) {
        QTest::newRow(row) << QStringLiteral("%1Dialog").arg(QLatin1String(name)) << prepare;
    };
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name << Preparation([](IBaseDialog*) {});
    add("error with retry", "ErrorMessage", [](IBaseDialog* dialog) { child(dialog, "btnMessageInnerButton").show(); });
    add("login filled in", "Authorization", [](IBaseDialog* dialog) {
        dynamic_cast<IAuthorizationDialog*>(dialog)->setPassword(QStringLiteral("secret"));
    });
    add("enrollment filled in", "Activation",
        [](IBaseDialog* dialog) { dynamic_cast<IActivationDialog*>(dialog)->setToken(QStringLiteral("secret")); });
    add("password filled in", "ZentPassword",
        [](IBaseDialog* dialog) { dynamic_cast<IZentPasswordDialog*>(dialog)->setPassword(QStringLiteral("secret")); });
    add("proxy with login", "Option", [](IBaseDialog* dialog) {
        auto* options = dynamic_cast<IOptionDialog*>(dialog);
        options->setProxyEnabled(true);
        options->setProxyAuthEnabled(true);
        options->setProxyAddress(QStringLiteral("proxy.example"));
        options->setProxyLogin(QStringLiteral("jane"));
    });
    add("ticket filled in", "ServiceDeskTicket", [](IBaseDialog* dialog) {
        auto* ticket = dynamic_cast<IServiceDeskTicketDialog*>(dialog);
        ticket->setSubject(QStringLiteral("Printer"));
        ticket->setIssueDetails(QStringLiteral("It is on fire."));
        ticket->setDepartments({QStringLiteral("IT"), QStringLiteral("Fire brigade")});
        ticket->setPriorities({QStringLiteral("Low"), QStringLiteral("High")});
    });
    add("countdown", "ApproveRemoteConnection",
        [](IBaseDialog* dialog) { dynamic_cast<IApproveRemoteConnectionDialog*>(dialog)->setCountdown(30); });
    for (const bool running : {true, false}) {
        add(running ? "running sessions" : "ended sessions", "RemoteConnection", [running](IBaseDialog* dialog) {
            auto* sessions = dynamic_cast<IRemoteConnectionDialog*>(dialog);
            sessions->addRemoteControlSession(QStringLiteral("1"), QStringLiteral("Jane"), 1, running);
            sessions->startRemoteToolsSession(QStringLiteral("2"), 1, QStringLiteral("John"), 1, running);
            child<QCheckBox>(dialog, "fileTransferInfoPanelCheckBox").setChecked(true);
            for (const char* path : {"a.txt", "b.txt"})
                sessions->addLogEvent(1, QStringLiteral("file"), QStringLiteral("file-upload"), QLatin1String(path),
                                      QStringLiteral("reply"));
        });
    }
}

IBaseDialog* AccessTest::showState()
{
    // NOLINTNEXTLINE: Qt Test declares variables of these names.
    QFETCH(QString, name);
    QFETCH(Preparation, prepare);
    IBaseDialog* dialog = get(name);
    prepare(dialog);
    showActive(dialog);
    settle();
    return dialog;
}

void AccessTest::everythingIsNamed_data()
{
    addStates();
}

void AccessTest::everythingIsNamed()
{
    QWidget& top = window(showState());
    QStringList nameless;
    int count = 0;
    walk(accessible(&top), [&](QAccessibleInterface* part) {
        const bool matters = part->state().focusable || part->role() == QAccessible::Button || part->object() == &top;
        if (!matters || part->state().invisible)
            return;
        ++count;
        if (part->text(QAccessible::Name).trimmed().isEmpty())
            nameless << describe(part);
    });
    QVERIFY(count > 1);
    const QList<QLineEdit*> edits = top.findChildren<QLineEdit*>();
    for (QLineEdit* edit : edits) {
        // The one within a spin box is a part of it.
        if (edit->focusProxy() == nullptr)
            QCOMPARE(accessible(edit)->role(), QAccessible::EditableText);
    }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
}

void AccessTest::picturesAreNamed_data()
{
    addStates();
}

void AccessTest::picturesAreNamed()
{
    // They stand beside the words that say the same.
    const QStringList decorations{QStringLiteral("iconContainer"), QStringLiteral("fileTransferIconContainer")};
    const QList<QLabel*> labels = window(showState()).findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->pixmap() && !decorations.contains(label->objectName()))
            QVERIFY2(!label->accessibleName().isEmpty(), qPrintable(label->objectName()));
    }
}

void AccessTest::secretsStayOnScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("field");
    const auto add = [](const char* name, const char* field) {
        QTest::newRow(field) << QStringLiteral("%1Dialog").arg(QLatin1String(name)) << QString(QLatin1String(field));
    };
    add("Authorization", "edPassword");
    add("ZentPassword", "edPassword");
    add("Activation", "edToken");
    add("EnterPassword", "editAdministratorPassword");
    add("EnterPassword", "editZentPassword");
    add("Option", "edtProxyPassword");
}

void AccessTest::secretsStayOnScreen()
{
    QFETCH(QString, name);
    QFETCH(QString, field);
    const QString secret = QStringLiteral("Qx7");
    IBaseDialog* dialog = get(name);
    if (auto* options = dynamic_cast<IOptionDialog*>(dialog)) {
        options->setProxyEnabled(true);
        options->setProxyAuthEnabled(true);
    }
    showActive(dialog);
    auto& edit = child<QLineEdit>(dialog, field.toLatin1().constData());
    edit.setFocus();
    const Listener listener;
    QTest::keyClicks(&edit, secret);
    QCOMPARE(edit.text(), secret);
    edit.clear();
    edit.insert(secret);
    edit.setText(secret);
    for (const Announcement& announcement : qAsConst(announcements))
        QVERIFY2(!announcement.told.contains(secret), qPrintable(announcement.told));
    walk(accessible(&window(dialog)),
         [&](QAccessibleInterface* part) { QVERIFY2(!toldOf(part).contains(secret), qPrintable(describe(part))); });
    QVERIFY(accessible(&edit)->state().passwordEdit);
}

void AccessTest::tokenIsAnEditableField()
{
    auto* dialog = show<IActivationDialog>();
    QAccessibleInterface* token = accessible(&child(dialog, "edToken"));
    QCOMPARE(token->role(), QAccessible::EditableText);
    QVERIFY(token->state().editable && token->state().focusable);
    QCOMPARE(token->text(QAccessible::Name), QStringLiteral("Token:"));
    dialog->setToken(QStringLiteral("four"));
    QCOMPARE(token->text(QAccessible::Value).size(), 4);
}

void AccessTest::countdownIsQuiet()
{
    auto* prompt = get<IApproveRemoteConnectionDialog>(QStringLiteral("1"));
    for (const int onCancel : {0, 1}) {
        auto& button = child<QAbstractButton>(prompt, onCancel ? "cancelButton" : "allowButton");
        const QString name = onCancel ? QStringLiteral("Cancel") : QStringLiteral("Allow");
        prompt->setCountdownOnCancel(onCancel);
        prompt->setCountdown(30);
        prompt->show();
        const Listener listener;
        for (int seconds = 29; seconds > 20; --seconds) {
            QVERIFY(QMetaObject::invokeMethod(&window(prompt), "slCountdownTimerTick"));
            QCOMPARE(button.text(), name + QStringLiteral("(%1)").arg(seconds));
            QCOMPARE(accessible(&button)->text(QAccessible::Name), name);
            QCOMPARE(accessible(&button)->text(QAccessible::Description),
                     QStringLiteral("%1 seconds left to answer").arg(seconds));
        }
        // Every new text of a button is announced as a new name; it must not be one.
        for (const Announcement& announcement : qAsConst(announcements)) {
            QCOMPARE(announcement.type, QAccessible::NameChanged);
            QCOMPARE(announcement.told, name);
        }
        prompt->hide();
    }
}

void AccessTest::countdownButtonCanBePressed()
{
    auto* prompt = get<IApproveRemoteConnectionDialog>(QStringLiteral("1"));
    prompt->setCountdown(30);
    showActive(prompt);
    QAccessibleInterface* cancel = accessible(&child(prompt, "cancelButton"));
    QCOMPARE(cancel->role(), QAccessible::Button);
    QVERIFY(cancel->state().defaultButton);
    QVERIFY(cancel->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    cancel->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(events.size(), 1);
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evCancel")});
}

void AccessTest::progressIsQuiet()
{
    auto* dialog = show<IProgressDialog>();
    QAccessibleInterface* spinner = accessible(&child(dialog, "messageIcon"));
    QAccessibleInterface* percentage = accessible(&child(dialog, "lblProgress"));
    QCOMPARE(spinner->text(QAccessible::Name), QStringLiteral("Progress"));
    QCOMPARE(spinner->text(QAccessible::Description), QStringLiteral("Please wait"));
    const Listener listener;
    for (unsigned int value = 1; value <= 100; ++value) {
        dialog->setProgress(value, 100);
        QVERIFY(QMetaObject::invokeMethod(&window(dialog), "updateProgressAnimation"));
    }
    QVERIFY(announcements.isEmpty());
    QCOMPARE(percentage->role(), QAccessible::ProgressBar);
    QCOMPARE(percentage->text(QAccessible::Name), QStringLiteral("Progress"));
    QCOMPARE(percentage->text(QAccessible::Value), QStringLiteral("100%"));
}

void AccessTest::logRowsArePlainText()
{
    auto* sessions = get<IRemoteConnectionDialog>();
    sessions->addLogEvent(1, QStringLiteral("file"), QStringLiteral("file-upload"), QStringLiteral("C:/<b>a.txt"),
                          QStringLiteral("reply"));
    QAccessibleInterface* list = accessible(&child(sessions, "logsListView"));
    QCOMPARE(list->childCount(), 1);
    const QString row = list->child(0)->text(QAccessible::Name);
    QVERIFY2(row.endsWith(QStringLiteral(" File uploaded C:/<b>a.txt")), qPrintable(row));
}

void AccessTest::tabChain_data()
{
    addStates();
}

void AccessTest::tabChain()
{
    QWidget& top = window(showState());
    QVector<QWidget*> expected;
    const QList<QWidget*> widgets = top.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (takesTab(widget))
            expected.append(widget);
    }
    const QVector<QWidget*> order = tabChainOf(top);
    for (QWidget* widget : qAsConst(expected))
        QVERIFY2(order.contains(widget), qPrintable(widget->objectName()));
    for (QWidget* widget : order)
        QVERIFY2(expected.contains(widget) || qobject_cast<QRadioButton*>(widget), qPrintable(widget->objectName()));

    QPoint previous;
    for (int i = 0; i < order.size(); ++i) {
        QWidget* widget = order.at(i);
        if (isInput(widget) && i > 0 && isInput(order.at(i - 1))) {
            const QPoint position = widget->mapTo(&top, QPoint(0, 0));
            // As one reads.
            QVERIFY2(position.y() > previous.y() || position.x() > previous.x(), qPrintable(widget->objectName()));
        }
        previous = widget->mapTo(&top, QPoint(0, 0));

        widget->setFocus(Qt::TabFocusReason);
        const QImage focused = pictureOf(top, widget);
        widget->clearFocus();
        QVERIFY2(focused != pictureOf(top, widget), qPrintable(widget->objectName()));
    }
}

void AccessTest::arrowKeysChoose()
{
    auto* dialog = show<IEnterPasswordDialog>();
    auto& administrator = child<QRadioButton>(dialog, "radioButtonComputerAdministrator");
    auto& custom = child<QRadioButton>(dialog, "radioButtonZentModeAccess");
    QVERIFY(administrator.isChecked());
    administrator.setFocus();
    QTest::keyClick(&administrator, Qt::Key_Down);
    QVERIFY(custom.isChecked() && custom.hasFocus());
    QTest::keyClick(&custom, Qt::Key_Up);
    QVERIFY(administrator.isChecked() && administrator.hasFocus());
    QVERIFY(!dialog->isCustomPasswordSelected());
}

void AccessTest::closeButtonHasAKey_data()
{
    addStates();
}

void AccessTest::closeButtonHasAKey()
{
    IBaseDialog* dialog = showState();
    const QList<QAbstractButton*> buttons = window(dialog).findChildren<QAbstractButton*>();
    for (QAbstractButton* unreachable : buttons) {
        if (!unreachable->isVisible() || unreachable->focusPolicy() != Qt::NoFocus)
            continue;
        QCOMPARE(unreachable->objectName(), QStringLiteral("btnClose"));
        QTest::mouseClick(unreachable, Qt::LeftButton);
        const QStringList wanted = takeEvents();
        QCOMPARE(wanted.size(), 1);
        bool reached = false;
        for (QAbstractButton* button : buttons) {
            if (!takesTab(button) || button->isCheckable())
                continue;
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Space);
            reached = reached || takeEvents() == wanted;
        }
        QVERIFY(reached);
    }
}

GUI_TEST_MAIN(AccessTest)
#include "tst_access.moc"
