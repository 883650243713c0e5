#include "GuiTest.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

namespace {
/// The states of dialogs in which there is more to reach than at first, by family: the host's calls that lead there.
const QPair<const char*, const char*> states[] = {
    {"AuthorizationDialog", R"({"setPassword": ["secret"]})"},
    {"ActivationDialog", R"({"setToken": ["secret"]})"},
    {"ZentPasswordDialog", R"({"setPassword": ["secret"]})"},
    {"OptionDialog", R"({"setProxyEnabled": [true], "setProxyAuthEnabled": [true], "setProxyAddress": ["proxy.example"],
                         "setProxyLogin": ["jane"]})"},
    {"ServiceDeskTicketDialog", R"({"setSubject": ["Printer"], "setIssueDetails": ["It is on fire."],
                                    "setDepartments": [["IT", "Fire brigade"]], "setPriorities": [["Low", "High"]]})"},
    {"ApproveRemoteConnectionDialog", R"({"setCountdown": [30]})"},
    {"RemoteConnectionDialog", R"({"addRemoteControlSession": ["1", "Jane", 1, true],
                                   "startRemoteToolsSession": ["2", 1, "John", 1, true],
                                   "addLogEvent": [1, "file", "file-upload", "a.txt", "reply"]})"},
    {"RemoteConnectionDialog", R"({"addRemoteControlSession": ["1", "Jane", 1, false],
                                   "startRemoteToolsSession": ["2", 1, "John", 1, false]})"},
};

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

/// All that a screen reader can walk to from @p root.
QVector<QAccessibleInterface*> partsOf(QAccessibleInterface* root)
{
    QVector<QAccessibleInterface*> parts{root};
    for (int i = 0; i < root->childCount(); ++i) {
        if (QAccessibleInterface* part = root->child(i))
            parts << partsOf(part);
    }
    return parts;
}

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

QImage pictureOf(QWidget& top, const QWidget* widget)
{
    const QRect area(widget->mapTo(&top, QPoint(0, 0)), widget->size());
    return top.grab(area.adjusted(-3, -3, 3, 3)).toImage();
}
} // namespace

/// The dialogs without eyes or without a mouse: what a screen reader finds, what it is spared, and where the keyboard
/// leads.
class AccessTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void everythingIsNamed_data();
    void everythingIsNamed();
    void tabChain_data();
    void tabChain();
    void closeButtonHasAKey_data();
    void closeButtonHasAKey();
    void countdownButtons();
    void progressIsQuiet();

private:
    IBaseDialog* showState();
};

IBaseDialog* AccessTest::showState()
{
    // NOLINTNEXTLINE: Qt Test declares variables of these names.
    QFETCH(QString, name);
    QFETCH(QByteArray, calls);
    IBaseDialog* dialog = get(name);
    const QJsonObject operations = QJsonDocument::fromJson(calls).object();
    for (auto call = operations.begin(); call != operations.end(); ++call)
        dialogFamily(name).operation(call.key()).call(*dialog, call.value().toArray());
    // What branding files and people can bring up.
    for (const char* part : {"btnMessageInnerButton", "fileTransferInfoPanelCheckBox"}) {
        if (auto* button = window(dialog).findChild<QAbstractButton*>(QLatin1String(part))) {
            button->show();
            button->setChecked(true);
        }
    }
    showActive(dialog);
    settle();
    return dialog;
}

void AccessTest::everythingIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("calls");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name << QByteArray();
    for (const auto& state : states)
        QTest::addRow("%s %s", state.first, state.second)
            << QString(QLatin1String(state.first)) << QByteArray(state.second);
}

void AccessTest::everythingIsNamed()
{
    QWidget& top = window(showState());
    QStringList names;
    for (QAccessibleInterface* part : partsOf(accessible(&top))) {
        const bool matters = part->state().focusable || part->role() == QAccessible::Button || part->object() == &top;
        if (!matters || part->state().invisible)
            continue;
        const QString name = part->text(QAccessible::Name).trimmed();
        QVERIFY2(!name.isEmpty(), part->object() ? qPrintable(part->object()->objectName()) : "a part without object");
        // Two buttons may do the same; what is filled in or ticked can be told apart.
        const bool isField = part->role() == QAccessible::EditableText || part->role() == QAccessible::CheckBox;
        QVERIFY2(!isField || !names.contains(name), qPrintable(name));
        names << name;
    }
    QVERIFY(names.size() > 1);
    // They stand beside the words that say the same.
    const QStringList decorations{QStringLiteral("iconContainer"), QStringLiteral("fileTransferIconContainer")};
    for (const QLabel* label : top.findChildren<QLabel*>()) {
        const bool matters = label->pixmap() && !decorations.contains(label->objectName());
        QVERIFY2(!matters || !label->accessibleName().isEmpty(), qPrintable(label->objectName()));
    }
}

void AccessTest::tabChain_data()
{
    everythingIsNamed_data();
}

void AccessTest::tabChain()
{
    IBaseDialog* dialog = showState();
    QWidget& top = window(dialog);
    QVector<QWidget*> order;
    for (;;) {
        press(dialog, Qt::Key_Tab);
        if (!top.focusWidget() || order.contains(top.focusWidget()))
            break;
        order << top.focusWidget();
    }
    for (QWidget* widget : top.findChildren<QWidget*>())
        QVERIFY2(order.contains(widget) == takesTab(widget) || qobject_cast<QRadioButton*>(widget),
                 qPrintable(widget->objectName()));

    const QWidget* previous = nullptr;
    for (QWidget* widget : qAsConst(order)) {
        if (previous && isInput(widget) && isInput(previous)) {
            const QPoint step = widget->mapTo(&top, QPoint()) - previous->mapTo(&top, QPoint());
            // As one reads.
            QVERIFY2(step.y() > 0 || step.x() > 0, qPrintable(widget->objectName()));
        }
        previous = widget;

        widget->setFocus(Qt::TabFocusReason);
        const QImage focused = pictureOf(top, widget);
        widget->clearFocus();
        QVERIFY2(focused != pictureOf(top, widget), qPrintable(widget->objectName()));
    }
}

void AccessTest::closeButtonHasAKey_data()
{
    everythingIsNamed_data();
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

void AccessTest::countdownButtons()
{
    auto* prompt = get<IApproveRemoteConnectionDialog>();
    const QString press = QAccessibleActionInterface::pressAction();
    for (const QString& name : {QStringLiteral("Allow"), QStringLiteral("Cancel")}) {
        auto& button = child<QPushButton>(prompt, qPrintable(name.toLower() + QStringLiteral("Button")));
        prompt->setCountdownOnCancel(button.isDefault());
        prompt->setCountdown(30);
        prompt->show();
        QCOMPARE(button.text(), QString(name + QStringLiteral("(30)")));
        QAccessibleInterface* told = accessible(&button);
        // Each new text of a button is announced as a new name: it must not be one.
        QCOMPARE(told->text(QAccessible::Name), name);
        QCOMPARE(told->text(QAccessible::Description), QStringLiteral("30 seconds left to answer"));
        QCOMPARE(told->role(), QAccessible::Button);
        QCOMPARE(bool(told->state().defaultButton), button.isDefault());
        QVERIFY(told->actionInterface()->actionNames().contains(press));
        told->actionInterface()->doAction(press);
        QTRY_COMPARE(events.size(), 1);
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("ev") + name});
        prompt->hide();
    }
}

void AccessTest::progressIsQuiet()
{
    auto* dialog = show<IProgressDialog>();
    QAccessibleInterface* percentage = accessible(&child(dialog, "lblProgress"));
    QCOMPARE(percentage->role(), QAccessible::ProgressBar);
    dialog->setProgress(50, 100);
    QVERIFY(QMetaObject::invokeMethod(&window(dialog), "updateProgressAnimation"));
    QCOMPARE(percentage->text(QAccessible::Value), QStringLiteral("50%"));
    QCOMPARE(percentage->valueInterface()->currentValue(), QVariant(50));
    dialog->hideProgressValue();
    QVERIFY(!percentage->valueInterface());
    // A label that has a name of its own does not announce its text.
    for (const char* moving : {"lblProgress", "messageIcon"})
        QCOMPARE(child(dialog, moving).accessibleName(), QStringLiteral("Progress"));
    QCOMPARE(child(dialog, "messageIcon").accessibleDescription(), QStringLiteral("Please wait"));
}

GUI_TEST_MAIN(AccessTest)
#include "tst_access.moc"
