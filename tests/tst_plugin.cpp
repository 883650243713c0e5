#include "GuiTest.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QPluginLoader>
#include <QPointer>

#include <cmath>
#include <limits>

/// The root object: identity, registry, event wiring and the scale factor.
class PluginTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void identity();
    void families_data();
    void families();
    void attachReportsMisuse();
    void eventsReachEveryReceiverOnce();
    void ratioReachesNewDialogsOnly();
    void badRatiosChangeNothing_data();
    void badRatiosChangeNothing();
    void hugeRatiosStayShowable();
    void deletedByPointer();
    void dialogsOutliveTheRoot();
};

void PluginTest::identity()
{
    const QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    const QJsonObject data = loader.metaData();
    QCOMPARE(data.value(QLatin1String("IID")).toString(), QStringLiteral("com.brisel.RUV.Plugin.GuiInterface"));
    QCOMPARE(data.value(QLatin1String("className")).toString(), QStringLiteral("Gui"));
    const QJsonObject keys{{QStringLiteral("Keys"), QJsonArray{QStringLiteral("GuiInterface")}}};
    QCOMPARE(data.value(QLatin1String("MetaData")).toObject(), keys);

    auto* root = dynamic_cast<QObject*>(&gui());
    QVERIFY(root);
    QCOMPARE(root->qt_metacast("Gui"), static_cast<void*>(root));
    for (const char* name : {"GuiInterface", "com.brisel.RUV.Plugin.GuiInterface"})
        QCOMPARE(root->qt_metacast(name), static_cast<void*>(&gui()));
    QVERIFY(!root->qt_metacast("BaseDialog"));
}

void PluginTest::families_data()
{
    QTest::addColumn<QString>("name");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name;
}

void PluginTest::families()
{
    QFETCH(QString, name);
    const Family& family = dialogFamily(name);
    const bool perConnection = name == QLatin1String("ApproveRemoteConnectionDialog");
    const QString id = perConnection ? QStringLiteral("7") : QString();
    const char* slot = family.receiverSlot.constData();
    EventReceiver receiver;

    QVERIFY(!family.attach(gui(), &receiver, slot, id));
    QVERIFY(!family.remove(gui(), id));

    IBaseDialog* first = family.get(gui(), id);
    QVERIFY(first);
    QCOMPARE(window(first).objectName(), name);
    QCOMPARE(QString::fromLatin1(window(first).metaObject()->className()), name);
    QVERIFY(window(first).qt_metacast("IBaseDialog"));
    QVERIFY(!window(first).parentWidget());
    QVERIFY(!window(first).isVisible());
    QCOMPARE(window(first).styleSheet().isEmpty(), name == QLatin1String("RemoteConnectionDialog"));
    QCOMPARE(family.get(gui(), id) == first, !perConnection);

    QVERIFY(family.attach(gui(), &receiver, slot, id));
    QVERIFY(!family.attach(gui(), &receiver, slot, id));

    const QPointer<QWidget> guard(&window(first));
    QVERIFY(family.remove(gui(), id));
    QVERIFY(!family.remove(gui(), id));
    settle();
    // The second prompt of one id took the registry entry over; the first is still the host's to delete.
    QCOMPARE(guard.isNull(), !perConnection);
    delete guard;
}

void PluginTest::attachReportsMisuse()
{
    get<IErrorMessageDialog>();
    EventReceiver receiver;
    const char* slot = SLOT(onDialogEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(nullptr, slot));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&receiver, nullptr));
    expectWarning(QStringLiteral("No such slot EventReceiver::unknown"));
    expectWarning(QStringLiteral("sender name: *.ErrorMessageDialog"));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&receiver, SLOT(unknown())));
    QVERIFY(gui().attachErrorMessageDialogEventHandler(&receiver, slot));
}

void PluginTest::eventsReachEveryReceiverOnce()
{
    auto* dialog = show<IErrorMessageDialog>();
    EventReceiver second;
    int received = 0;
    connect(&second, &EventReceiver::received, this, [&](const DialogEvent& event) {
        QCOMPARE(event.sender, static_cast<IBaseDialog*>(dialog));
        ++received;
    });
    const char* slot = SLOT(onDialogEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent));
    QVERIFY(gui().attachErrorMessageDialogEventHandler(&second, slot));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, slot));
    click(dialog, "btnCancel");
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClose")});
    QCOMPARE(received, 1);
}

void PluginTest::ratioReachesNewDialogsOnly()
{
    QWidget& before = window(get<IErrorMessageDialog>());
    gui().setRatio(1.5F);
    QCOMPARE(gui().getRatio(), 1.5F);
    QCOMPARE(&window(get<IErrorMessageDialog>()), &before);
    QCOMPARE(before.size(), QSize(501, 502));
    QCOMPARE(window(get<IAcceptMessageDialog>()).size(), QSize(751, 753));
}

void PluginTest::badRatiosChangeNothing_data()
{
    QTest::addColumn<float>("ratio");
    QTest::newRow("zero") << 0.0F;
    QTest::newRow("negative") << -1.5F;
    QTest::newRow("not a number") << std::nanf("");
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<float>::infinity();
    QTest::newRow("one") << 1.0F;
}

void PluginTest::badRatiosChangeNothing()
{
    QFETCH(float, ratio);
    gui().setRatio(ratio);
    QCOMPARE(gui().getRatio(), 1.0F);
    auto* dialog = get<IErrorMessageDialog>();
    const QRect geometry = window(dialog).geometry();
    dialog->setRatio(ratio);
    QCOMPARE(window(dialog).geometry(), geometry);
    QCOMPARE(child(dialog, "btnCancel").geometry(), QRect(400, 460, 90, 30));
}

void PluginTest::hugeRatiosStayShowable()
{
    gui().setRatio(std::numeric_limits<float>::max());
    auto* dialog = show<IErrorMessageDialog>();
    QVERIFY(qMax(window(dialog).width(), window(dialog).height()) <= 8192);
    dialog->setRatio(1.0e30F);
    QVERIFY(qMax(window(dialog).width(), window(dialog).height()) <= 8192);
    click(dialog, "btnClose");
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClose")});
    dialog->setRatio(std::numeric_limits<float>::denorm_min());
    settle();
}

void PluginTest::deletedByPointer()
{
    IErrorMessageDialog* dialog = get<IErrorMessageDialog>();
    delete dialog;
    QVERIFY(!gui().deleteErrorMessageDialogInstance());
    QVERIFY(get<IErrorMessageDialog>()->message().isEmpty());
}

void PluginTest::dialogsOutliveTheRoot()
{
    auto* dialog = show<IErrorMessageDialog>();
    const QPointer<QWidget> guard(&window(dialog));
    delete &gui();
    QVERIFY(guard && guard->isVisible());
    click(dialog, "btnCancel");
    QCOMPARE(takeEvents(), QStringList{QStringLiteral("evClose")});
    delete guard;

    // The loader makes a new root object on demand, which knows nothing of the old one's dialogs.
    QVERIFY(!gui().deleteErrorMessageDialogInstance());
    QVERIFY(get<IErrorMessageDialog>());
}

GUI_TEST_MAIN(PluginTest)
#include "tst_plugin.moc"
