#include "GuiTest.h"

#include <random>

namespace {
constexpr int totalSteps = 8000;
const QVector<double> ratios{1.0, 0.5, 0.8, 0.0, -1.0, 1e-9, qQNaN(), qInf()};
const QString words = QStringLiteral(" a <b>%1</b>&amp; https://mdm.example.com:444/0123456789abcdef0123456789abcdef "
                                     "file file-upload reply ")
    + QString(5000, QLatin1Char('w'));
const QJsonArray texts = QJsonArray::fromStringList(words.split(QLatin1Char(' ')));
const QHash<int, QJsonArray> valuesByType{
    {QJsonValue::Bool, {false, true}},
    {QJsonValue::String, texts},
    {QJsonValue::Array, {QJsonArray(), texts}},
    {QJsonValue::Double, {0, 1, -1, 2, 3, 7, 30, 100, 255, 65535, 2147483647.0, -2147483648.0, 1.5e12}}};
const QVector<Qt::Key> keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Space,
                            Qt::Key_A,      Qt::Key_Down,  Qt::Key_Up,     Qt::Key_Home, Qt::Key_Delete};
} // namespace

/// A host that does everything in any order: also inside its event slots, while dialogs run nested, and to dialogs that
/// it has just deleted or never got.
class MisuseTest : public GuiTest {
    Q_OBJECT

    struct Known {
        const Family* family;
        QString id;
        IBaseDialog* dialog;
        QPointer<QWidget> window;
    };

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

    Known randomDialog()
    {
        const Family& family = dialogFamilies()[below(dialogFamilies().size())];
        // Prompts are kept per id, all others whatever the id.
        const QString id(below(4), QLatin1Char('a'));
        const auto isUsable = [&](const Known& one) { return one.window && one.family == &family && one.id == id; };
        const auto old = std::find_if(known.cbegin(), known.cend(), isUsable);
        if (old != known.cend() && oneIn(2))
            return *old;
        IBaseDialog* dialog = family.get(gui(), id);
        family.attach(gui(), &receiver, family.receiverSlot.constData(), id);
        known.append({&family, id, dialog, &window(dialog)});
        return known.last();
    }

    void callOperation(const Known& target)
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

    void endInnermost()
    {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->QDialog::done(below(3));
    }

    void actOn(const Known& target)
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
            [&] {
                if (running.size() >= 4 || running.contains(target.dialog))
                    return;
                running.append(target.dialog);
                target.dialog->exec();
                running.removeLast();
            },
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

    void step()
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

    void keepGoing()
    {
        // Inside the event loops of exec() and of the dialogs' own questions too, until all of them have ended. A
        // repeating timer would not fire inside a loop that its own slot has started.
        QTimer::singleShot(0, this, [this] {
            keepGoing();
            if (steps < totalSteps)
                step();
            else
                endInnermost();
        });
    }

    std::mt19937 engine{QT_VERSION_MAJOR + 2 * hasSanitizer}; // another walk in every build of ./test
    EventReceiver receiver;
    QVector<Known> known;
    /// The dialogs inside exec(), the innermost last.
    QVector<IBaseDialog*> running;
    int steps = 0;
    int handlers = 0;
    int eventCount = 0;

private Q_SLOTS:
    void anyOrder()
    {
        // Questions stay open while other things happen.
        qApp->removeEventFilter(this);
        connect(&receiver, &EventReceiver::received, this, [this] {
            ++eventCount;
            // What a host may do in its slot: anything but deleting the sender under its own feet.
            if (handlers >= 2 || !oneIn(3))
                return;
            ++handlers;
            actOn(randomDialog());
            --handlers;
        });
        keepGoing();
        // In events only, as in every host. Qt carries out a deletion that was scheduled outside of any event in the
        // next event loop, also when a slot of the deleted dialog runs that loop.
        QTRY_VERIFY_WITH_TIMEOUT(steps >= totalSteps, 250000);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        for (const Known& one : qAsConst(known))
            delete one.window;
        QVERIFY(eventCount > totalSteps / 40);
    }
};

GUI_TEST_MAIN(MisuseTest)
#include "tst_misuse.moc"
