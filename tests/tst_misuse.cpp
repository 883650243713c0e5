#include "GuiTest.h"

#include <QAbstractButton>
#include <QDialog>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <random>

/// A host that does everything in any order: also inside its event slots, while dialogs run nested, and to dialogs that
/// it has just deleted or never got.
class MisuseTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    // First, while memory is in order.
    void memoryStays();
    void anyOrder();
    void deletedInItsOwnSlot_data();
    void deletedInItsOwnSlot();

private:
    struct Known {
        const Family* family;
        QString id;
        IBaseDialog* dialog;
        QPointer<QWidget> window;
    };
    void keepGoing();
    void step();
    void actOn(const Known& target);
    void callOperation(const Known& target);
    void exec(IBaseDialog* dialog);
    void endInnermost();
    void onEvent();
    Known randomDialog();

    int below(int count)
    {
        return static_cast<int>(engine() % static_cast<quint32>(count));
    }
    bool oneIn(int count)
    {
        return below(count) == 0;
    }
    template <class Container>
    auto pick(const Container& values)
    {
        return values[below(static_cast<int>(values.size()))];
    }

    std::mt19937 engine{20260719};
    EventReceiver receiver;
    QVector<Known> known;
    /// The dialogs inside exec(), the innermost last.
    QVector<IBaseDialog*> running;
    int steps = 0;
    int handlers = 0;
    int eventCount = 0;
};

namespace {
constexpr int totalSteps = 20000;
const QVector<double> ratios{1.0, 0.5, 0.8, 0.0, -1.0, 1e-9, qQNaN(), qInf()};
const QJsonArray texts{QString(),
                       QStringLiteral("a"),
                       QStringLiteral("<b>%1</b>&amp;"),
                       QStringLiteral("https://mdm.example.com:444/0123456789abcdef0123456789abcdef"),
                       QStringLiteral("file"),
                       QStringLiteral("file-upload"),
                       QStringLiteral("reply"),
                       QString(5000, QLatin1Char('w'))};
const QHash<int, QJsonArray> valuesByType{
    {QJsonValue::Bool, {false, true}},
    {QJsonValue::String, texts},
    {QJsonValue::Array, {QJsonArray(), texts}},
    {QJsonValue::Double, {0, 1, -1, 2, 3, 7, 30, 100, 255, 65535, 2147483647.0, -2147483648.0, 1.5e12}}};
const QVector<Qt::Key> keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Space,
                            Qt::Key_A,      Qt::Key_Down,  Qt::Key_Up,     Qt::Key_Home, Qt::Key_Delete};
} // namespace

MisuseTest::Known MisuseTest::randomDialog()
{
    const Family& family = dialogFamilies()[below(dialogFamilies().size())];
    // Prompts are kept per id, all others whatever the id.
    const QString id(below(4), QLatin1Char('a'));
    if (oneIn(2)) {
        for (const Known& candidate : qAsConst(known)) {
            if (candidate.window && candidate.family == &family && candidate.id == id)
                return candidate;
        }
    }
    IBaseDialog* dialog = family.get(gui(), id);
    family.attach(gui(), &receiver, family.receiverSlot.constData(), id);
    known.append({&family, id, dialog, &window(dialog)});
    return known.last();
}

void MisuseTest::callOperation(const Known& target)
{
    const Operation& operation = pick(target.family->operations);
    QJsonArray arguments;
    for (const QJsonValue::Type type : operation.argumentTypes)
        arguments << pick(valuesByType[type]);
    try {
        operation.call(*target.dialog, arguments);
    } catch (const ScriptError&) {
        // A number that the operation's type does not hold.
    }
}

void MisuseTest::exec(IBaseDialog* dialog)
{
    if (running.size() >= 4 || running.contains(dialog))
        return;
    running.append(dialog);
    dialog->exec();
    running.removeLast();
}

void MisuseTest::endInnermost()
{
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        dialog->QDialog::done(below(3));
}

void MisuseTest::actOn(const Known& target)
{
    const QVector<std::function<void()>> actions{
        [&] { target.family->attach(gui(), &receiver, target.family->receiverSlot.constData(), target.id); },
        [&] { target.family->remove(gui(), target.id); },
        [&] { target.dialog->show(); },
        [&] { target.dialog->hide(); },
        [&] { target.dialog->done(below(3) - 1); },
        // A huge one is rare, as such a window takes long to paint.
        [&] { target.dialog->setRatio(oneIn(400) ? 1e9F : static_cast<float>(pick(ratios))); },
        [&] { target.dialog->setModal(oneIn(2)); },
        [&] { target.window->close(); },
        [&] { exec(target.dialog); },
        [&] { press(target.dialog, pick(keys)); },
        [&] { pick(target.window->findChildren<QAbstractButton*>())->click(); },
        [&] {
            // Allowed anywhere but in the dialog's own slots.
            if (handlers == 0)
                delete target.dialog;
        },
    };
    if (oneIn(4))
        callOperation(target);
    else
        pick(actions)();
}

void MisuseTest::onEvent()
{
    ++eventCount;
    // What a host may do in its slot: anything but deleting the sender under its own feet.
    if (handlers >= 2 || !oneIn(3))
        return;
    ++handlers;
    actOn(randomDialog());
    --handlers;
}

void MisuseTest::step()
{
    ++steps;
    if (!running.isEmpty() && oneIn(6))
        endInnermost();
    else if (oneIn(60))
        gui().setRatio(pick(QVector<float>{0.5F, 1.0F, 1.0F, 1.5F, -1.0F}));
    else if (oneIn(60))
        gui().deleteAllApproveRemoteConnectionDialogInstances();
    else if (oneIn(8))
        settle();
    else
        actOn(randomDialog());
    // Prompts that the registry has forgotten are the host's own to delete.
    if (known.size() > 50 && handlers == 0) {
        delete known.first().window;
        known.removeFirst();
    }
}

void MisuseTest::keepGoing()
{
    // Inside the event loops of exec() and of the dialogs' own questions too, until all of them have ended. A repeating
    // timer would not fire inside a loop that its own slot has started.
    QTimer::singleShot(0, this, [this] {
        keepGoing();
        if (steps < totalSteps)
            step();
        else
            endInnermost();
    });
}

void MisuseTest::anyOrder()
{
    connect(&receiver, &EventReceiver::received, this, &MisuseTest::onEvent);
    keepGoing();
    while (steps < totalSteps)
        step();
    QTRY_VERIFY(!QApplication::activeModalWidget());
    for (const Known& one : qAsConst(known))
        delete one.window;
    known.clear();
    QVERIFY(eventCount > totalSteps / 40);
}

void MisuseTest::deletedInItsOwnSlot_data()
{
    familyRows();
}

void MisuseTest::deletedInItsOwnSlot()
{
    // A slot that shows an error and meanwhile lets the dialog that has called it go.
    QFETCH(QString, family);
    const Family& type = dialogFamily(family);
    const QString id = QStringLiteral("id");
    int deleted = 0;
    EventReceiver slot;
    connect(&slot, &EventReceiver::received, this, [&](const DialogEvent& event) {
        const QPointer<QWidget> sender(&window(event.sender));
        if (!type.remove(gui(), id))
            return;
        QVERIFY(sender);
        QEventLoop answer;
        QTimer::singleShot(0, &answer, &QEventLoop::quit);
        answer.exec();
        settle();
        ++deleted;
    });
    int buttons = 1;
    for (int i = 0; i < buttons; ++i) {
        IBaseDialog* dialog = type.get(gui(), id);
        type.attach(gui(), &slot, type.receiverSlot.constData(), id);
        const QPointer<QWidget> top(&window(dialog));
        dialog->show();
        // A prompt whose time is over has reported that and is gone.
        if (!top)
            continue;
        fillIn(dialog);
        if (auto* session = dynamic_cast<IRemoteConnectionDialog*>(dialog)) {
            session->addRemoteControlSession(id, id, 1000, true);
            session->startRemoteToolsSession(id, 1, id, 1000, true);
        }
        const auto all = top->findChildren<QAbstractButton*>();
        buttons = all.size();
        QTimer::singleShot(0, this, &MisuseTest::endInnermost);
        all[i]->click();
        settle();
        type.remove(gui(), id);
        settle();
    }
    QVERIFY(deleted > 0);
}

void MisuseTest::memoryStays()
{
    const auto rounds = [](int count) {
        for (int round = 0; round < count; ++round) {
            const Family& family = dialogFamilies()[round % dialogFamilies().size()];
            family.get(gui(), QStringLiteral("id"));
            family.remove(gui(), QStringLiteral("id"));
            settle();
        }
    };
    // The test itself keeps every message.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    // Leak detection sees what is lost; this sees what is kept without need.
    rounds(1000);
    const size_t early = memoryInUse();
    rounds(hasSanitizer ? 0 : 9000);
    const size_t late = memoryInUse();
    qInfo("%zu bytes in use after 1000 rounds, %zu after 10000", early, late);
    QVERIFY(late <= early + early / 100);
}

GUI_TEST_MAIN(MisuseTest)
#include "tst_misuse.moc"
