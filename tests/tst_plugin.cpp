#include "GuiTest.h"

#include <QPointer>

#include <cmath>
#include <cstring>
#include <limits>

/// The root object: identity, registry, event wiring and the scale factor.
class PluginTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void identity();
    void families_data();
    void families();
    void attaching();
    void ratioReachesNewDialogsOnly();
    void badRatiosChangeNothing();
    void hugeRatiosStayShowable();
    void dialogsOutliveTheRoot();
};

namespace {
const char* const errorSlot = SLOT(onDialogEvent(IErrorMessageDialog*, IErrorMessageDialog::TEvent));
} // namespace

void PluginTest::identity()
{
    auto* root = dynamic_cast<QObject*>(&gui());
    QVERIFY(root);
    QCOMPARE(root->qt_metacast("Gui"), static_cast<void*>(root));
    for (const char* name : {"GuiInterface", "com.brisel.RUV.Plugin.GuiInterface"})
        QCOMPARE(root->qt_metacast(name), static_cast<void*>(&gui()));
    QVERIFY(!root->qt_metacast("BaseDialog"));
}

void PluginTest::families_data()
{
    familyRows();
}

void PluginTest::families()
{
    QFETCH(QString, family);
    const Family& operations = dialogFamily(family);
    const bool perConnection = family == QLatin1String("ApproveRemoteConnectionDialog");
    const QString id = perConnection ? QStringLiteral("7") : QString();
    const char* slot = operations.receiverSlot.constData();
    EventReceiver receiver;

    QVERIFY(!operations.attach(gui(), &receiver, slot, id));
    QVERIFY(!operations.remove(gui(), id));

    IBaseDialog* first = operations.get(gui(), id);
    QVERIFY(first);
    QWidget& top = window(first);
    QCOMPARE(top.objectName(), family);
    QVERIFY(top.qt_metacast("IBaseDialog"));
    QVERIFY(!top.parentWidget() && !top.isVisible());
    QCOMPARE(top.styleSheet().isEmpty(), family == QLatin1String("RemoteConnectionDialog"));
    QCOMPARE(operations.get(gui(), id) == first, !perConnection);

    QVERIFY(operations.attach(gui(), &receiver, slot, id));
    QVERIFY(!operations.attach(gui(), &receiver, slot, id));

    const QPointer<QWidget> guard(&top);
    QVERIFY(operations.remove(gui(), id));
    QVERIFY(!operations.remove(gui(), id));
    settle();
    // The second prompt of one id took the registry entry over; the first is still the host's to delete.
    QCOMPARE(guard.isNull(), !perConnection);
    delete guard;
}

void PluginTest::attaching()
{
    auto* dialog = show<IErrorMessageDialog>();
    EventReceiver second;
    int received = 0;
    connect(&second, &EventReceiver::received, this, [&](const DialogEvent& event) {
        QCOMPARE(event.sender, static_cast<IBaseDialog*>(dialog));
        ++received;
    });
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(nullptr, errorSlot));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, nullptr));
    expectWarning(QStringLiteral("No such slot EventReceiver::unknown"));
    expectWarning(QStringLiteral("sender name: *.ErrorMessageDialog"));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, SLOT(unknown())));
    QVERIFY(gui().attachErrorMessageDialogEventHandler(&second, errorSlot));
    QVERIFY(!gui().attachErrorMessageDialogEventHandler(&second, errorSlot));

    checkEvents(dialog, QStringLiteral("btnCancel"), QStringLiteral("evClose"));
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

void PluginTest::badRatiosChangeNothing()
{
    const QRect geometry = window(get<IErrorMessageDialog>()).geometry();
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float ratio : {0.0F, -1.5F, std::nanf(""), infinity, -infinity}) {
        gui().setRatio(ratio);
        const float stored = gui().getRatio();
        QVERIFY(std::memcmp(&stored, &ratio, sizeof ratio) == 0);
        gui().deleteErrorMessageDialogInstance();
        auto* dialog = get<IErrorMessageDialog>();
        dialog->setRatio(ratio);
        QCOMPARE(window(dialog).geometry(), geometry);
        QCOMPARE(child(dialog, "btnCancel").geometry(), QRect(400, 460, 90, 30));
    }
}

void PluginTest::hugeRatiosStayShowable()
{
    gui().setRatio(std::numeric_limits<float>::max());
    auto* dialog = show<IErrorMessageDialog>();
    const auto longestSide = [dialog] { return qMax(window(dialog).width(), window(dialog).height()); };
    QVERIFY(longestSide() <= 8192);
    dialog->setRatio(1.0e30F);
    QVERIFY(longestSide() <= 8192);
    checkEvents(dialog, QStringLiteral("btnClose"), QStringLiteral("evClose"));
    dialog->setRatio(std::numeric_limits<float>::denorm_min());
    settle();
}

void PluginTest::dialogsOutliveTheRoot()
{
    auto* dialog = show<IErrorMessageDialog>();
    delete &gui();
    checkEvents(dialog, QStringLiteral("btnCancel"), QStringLiteral("evClose"));
    delete &window(dialog);
    // The loader makes a new root object on demand, which knows nothing of the old one's dialogs.
    QVERIFY(!gui().deleteErrorMessageDialogInstance());
    QVERIFY(get<IErrorMessageDialog>());
}

GUI_TEST_MAIN(PluginTest)
#include "tst_plugin.moc"
