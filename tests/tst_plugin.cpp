#include "GuiTest.h"

#include <cstring>

/// The root object: registry, event wiring and the scale factor; and every property of the dialogs.
class PluginTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void families_data()
    {
        familyRows();
    }

    void families()
    {
        QFETCH(QString, family);
        const Family& operations = dialogFamily(family);
        const bool perConnection = family == QLatin1String("ApproveRemoteConnectionDialog");
        const QString id = perConnection ? QStringLiteral("7") : QString();
        const char* slot = operations.receiverSlot.constData();
        EventReceiver receiver;

        QVERIFY(!operations.attach(gui(), &receiver, slot, id) && !operations.remove(gui(), id));

        IBaseDialog* first = operations.get(gui(), id);
        QWidget& top = window(first);
        QCOMPARE(top.objectName(), family);
        QVERIFY(top.qt_metacast("IBaseDialog") && !top.parentWidget() && !top.isVisible());
        QCOMPARE(top.styleSheet().isEmpty(), family == QLatin1String("RemoteConnectionDialog"));
        QCOMPARE(operations.get(gui(), id) == first, !perConnection);

        QVERIFY(operations.attach(gui(), &receiver, slot, id));
        QVERIFY(!operations.attach(gui(), &receiver, slot, id));

        const QPointer<QWidget> guard(&top);
        QVERIFY(operations.remove(gui(), id));
        QVERIFY(!operations.remove(gui(), id));
        // A host may remove a dialog in its own slot.
        QVERIFY(guard);
        // The next dialog of that name may exist before the last one is deleted.
        operations.get(gui(), id);
        settle();
        QVERIFY(operations.remove(gui(), id));
        // The second prompt of one id took the registry entry over; the first is still the host's to delete.
        QCOMPARE(guard.isNull(), !perConnection);
        delete guard;
    }

    void properties_data()
    {
        familyRows();
    }

    /// Sets all properties to values of their own, twice, and reads them back when the last one is set.
    void properties()
    {
        QFETCH(QString, family);
        const Family& operations = dialogFamily(family);
        IBaseDialog* dialog = get(family);
        QStringList texts;
        for (int i = 0; i < 40; ++i)
            texts << QStringLiteral("https://%1.example:8443/command/windows/").arg(i);
        for (const Operation& operation : operations.operations) {
            if (operation.argumentTypes == QVector<QJsonValue::Type>{QJsonValue::Array})
                operation.call(*dialog, QJsonArray() << QJsonArray::fromStringList(texts));
        }
        int next = 0;
        for (int round = 0; round < 2; ++round) {
            QVector<QPair<const Operation*, QJsonValue>> expected;
            for (const Operation& getter : operations.operations) {
                const QString property = getter.property();
                const QString setter = QStringLiteral("set") + property.at(0).toUpper() + property.mid(1);
                for (const Operation& operation : operations.operations) {
                    if (!getter.isGetter || operation.name != setter)
                        continue;
                    ++next;
                    QJsonValue value = getter.call(*dialog, QJsonArray());
                    if (value.isBool())
                        value = !value.toBool();
                    else if (value.isString())
                        value = texts[next];
                    else // Of periods there are few.
                        value = property == QLatin1String("postponePeriod") ? next % 4 : 100 + next;
                    QJsonArray arguments{value};
                    if (operation.argumentTypes.size() > 1)
                        arguments << (value.isString() ? QJsonValue(false) : QJsonValue(100));
                    operation.call(*dialog, arguments);
                    expected.append({&getter, value});
                }
            }
            for (const auto& one : qAsConst(expected))
                QVERIFY2(one.first->call(*dialog, QJsonArray()) == one.second, qPrintable(one.first->name));
        }
    }

    void attaching()
    {
        const char* const errorSlot = SLOT(onDialogEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent));
        auto* dialog = show<IErrorMessageDialog>();
        EventReceiver second;
        int received = 0;
        connect(&second, &EventReceiver::received, this, [&](const DialogEvent& event) {
            QCOMPARE(event.sender, static_cast<IBaseDialog*>(dialog));
            ++received;
        });
        QVERIFY(!gui().attachErrorMessageDialogEventHandler(nullptr, errorSlot));
        QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, nullptr));
        // Qt warns of it.
        const auto handler = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        const bool isAttached = gui().attachErrorMessageDialogEventHandler(&second, SLOT(unknown()));
        qInstallMessageHandler(handler);
        QVERIFY(!isAttached);
        QVERIFY(gui().attachErrorMessageDialogEventHandler(&second, errorSlot));
        QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, errorSlot));

        checkEvents(dialog, QStringLiteral("btnCancel"), QStringLiteral("evClose"));
        QCOMPARE(received, 1);
    }

    void ratios()
    {
        QWidget& before = window(get<IErrorMessageDialog>());
        const QRect geometry = before.geometry();
        const float infinity = std::numeric_limits<float>::infinity();
        for (const float ratio : {0.0F, -1.5F, std::nanf(""), infinity, -infinity}) {
            gui().setRatio(ratio);
            const float stored = gui().getRatio();
            QVERIFY(std::memcmp(&stored, &ratio, sizeof ratio) == 0);
            auto* dialog = get<IAcceptMessageDialog>();
            dialog->setRatio(ratio);
            QCOMPARE(window(dialog).geometry(), geometry);
            QCOMPARE(child(dialog, "btnCancel").geometry(), QRect(400, 460, 90, 30));
            QVERIFY(gui().deleteAcceptMessageDialogInstance());
        }
        gui().setRatio(1.5F);
        QCOMPARE(gui().getRatio(), 1.5F);
        QCOMPARE(window(get<IAcceptMessageDialog>()).size(), QSize(751, 753));
        const QPoint center = QGuiApplication::primaryScreen()->availableGeometry().center();
        QVERIFY((window(get<IRebootDialog>()).geometry().center() - center).manhattanLength() <= 2);
        QCOMPARE(&window(get<IErrorMessageDialog>()), &before);
        QCOMPARE(before.geometry(), geometry);
        gui().setRatio(std::numeric_limits<float>::max());
        QVERIFY(window(get<IAboutDialog>()).width() <= 8192);
    }

    void dialogsOutliveTheRoot()
    {
        auto* dialog = show<IErrorMessageDialog>();
        delete &gui();
        checkEvents(dialog, QStringLiteral("btnCancel"), QStringLiteral("evClose"));
        delete &window(dialog);
        // The loader makes a new root object on demand, which knows nothing of the old one's dialogs.
        QVERIFY(!gui().deleteErrorMessageDialogInstance());
        QVERIFY(get<IErrorMessageDialog>());
    }
};

GUI_TEST_MAIN(PluginTest)
#include "tst_plugin.moc"
