#include "GuiTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>
#include <QTranslator>

/// What the dialogs look like in one language on a screen of one resolution. The library chooses its language when it
/// is loaded, and Qt the size of its fonts, so that each pair takes a program run of its own: LANGUAGE and QT_FONT_DPI
/// say which.
class LanguageTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textsFit_data();
    void textsFit();
    void logRowsFit();
    void menusAreTranslated();
};

namespace {
const QString untranslated = QStringLiteral("untranslated");

/// Installed before the library is loaded, it is asked for what the library's translator does not know.
class LastTranslator final : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char* /*comment*/, int /*n*/) const override
    {
        // The sign between the keys of a shortcut is the same everywhere.
        return *context != 'Q' || qstrcmp(source, "+") == 0 ? QString() : untranslated;
    }
    bool isEmpty() const override
    {
        return false;
    }
};

/// The property that holds the text which the library puts into @p widget; null if it puts none.
const char* textProperty(const QWidget* widget)
{
    if (qobject_cast<const QGroupBox*>(widget))
        return "title";
    if (qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget))
        return "text";
    if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QTextEdit*>(widget))
        return "placeholderText";
    return qobject_cast<const QComboBox*>(widget) ? "currentIndex" : nullptr;
}

/// The painted pixels of a text.
struct Ink {
    int amount = 0;
    QRect box;
};

Ink inkOf(QWidget* widget, const char* property)
{
    const QVariant text = widget->property(property);
    if (text.toString().isEmpty())
        return {};
    const QImage with = widget->grab().toImage();
    widget->setProperty(property, text.type() == QVariant::Int ? QVariant(-1) : QVariant(QStringLiteral(" ")));
    const QImage without = widget->grab().toImage();
    widget->setProperty(property, text);
    Ink ink;
    for (int i = 0; i < with.width() * with.height(); ++i) {
        const QPoint position(i % with.width(), i / with.width());
        if (with.pixel(position) != without.pixel(position)) {
            ++ink.amount;
            ink.box |= QRect(position, QSize(1, 1));
        }
    }
    return ink;
}

/// Whether more of the text would be painted if its widget were larger.
bool isCut(QWidget* widget, const char* property)
{
    const Ink ink = inkOf(widget, property);
    const auto* label = qobject_cast<QLabel*>(widget);
    const bool wraps = qobject_cast<QTextEdit*>(widget) || (label && label->wordWrap());
    const QSize size = widget->size();
    const QSize maximum = widget->maximumSize();
    widget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    widget->resize(size + QSize(wraps ? 0 : 400, 60));
    const int all = inkOf(widget, property).amount;
    widget->setMaximumSize(maximum);
    widget->resize(size);
    // The heading of the login is 16 pixels high, and East Asian letters of its font lose one pixel above and below.
    const bool isLoginHeading = widget->objectName() == QLatin1String("label_2")
        && widget->window()->objectName() == QLatin1String("AuthorizationDialog");
    constexpr int lessThanALetter = 6;
    // On the frame of a button a text is as good as cut, and so is a word that reaches the edge of its label.
    const int frame = qobject_cast<QPushButton*>(widget) ? 4 : wraps ? 1 : 0;
    return ink.amount < all - (isLoginHeading ? all / 20 : lessThanALetter)
        || (!ink.box.isEmpty() && !widget->rect().adjusted(0, 0, -frame, 0).contains(ink.box));
}

/// What no other text may cover, in the window: of a label and a title what is painted, of a control all but its frame.
QRect areaOf(QWidget* widget, const char* property)
{
    const bool isPassive = qobject_cast<QLabel*>(widget) || qobject_cast<QGroupBox*>(widget);
    const QRect area = isPassive ? inkOf(widget, property).box : widget->rect().adjusted(4, 4, -4, -4);
    return area.translated(widget->mapTo(widget->window(), QPoint(0, 0)));
}
} // namespace

void LanguageTest::init()
{
    GuiTest::init();
    // Hosts scale the dialogs on screens of a higher logical resolution, where fonts grow by themselves.
    gui().setRatio(static_cast<float>(QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0));
}

void LanguageTest::textsFit_data()
{
    // What the host calls first, by operation.
    textColumns({"name", "calls"});
    for (const Family& family : dialogFamilies())
        textRow({family.name.toUtf8().constData(), "{}"});
    textRow({"RebootDialog", R"({"setShutdown": [true]})"});
    textRow({"ServiceDeskTicketDialog", R"({"setSubjectMaxLength": [1000], "setIssueDetailsMaxLength": [32000]})"});
    textRow({"ApproveRemoteConnectionDialog", R"({"setCountdown": [3600], "setCountdownOnCancel": [0]})"});
    textRow({"ApproveRemoteConnectionDialog", R"({"setCountdown": [3600], "setCountdownOnCancel": [1]})"});
    // A long name and a clock of several days, in sessions that the person may end and in others.
    const QString sessions =
        QStringLiteral(R"({"addRemoteControlSession": ["1", "Maximiliane Mustermann-Beispiel", 1, %2],)"
                       R"( "startRemoteToolsSession": ["2", %1, "Maximiliane Mustermann-Beispiel", 1, %2]})");
    for (const char* type : {"0", "1"}) {
        for (const char* canEnd : {"false", "true"})
            textRow({"RemoteConnectionDialog", qPrintable(sessions.arg(QLatin1String(type), QLatin1String(canEnd)))});
    }
}

void LanguageTest::textsFit()
{
    QFETCH(QString, name);
    QFETCH(QString, calls);
    IBaseDialog* dialog = get(name);
    QWidget& top = window(dialog);
    const QJsonObject operations = QJsonDocument::fromJson(calls.toUtf8()).object();
    for (const QString& operation : operations.keys())
        dialogFamily(name).operation(operation).call(*dialog, operations.value(operation).toArray());
    // Everything that persons, hosts and branding files can bring up.
    for (QAbstractButton* button : top.findChildren<QAbstractButton*>()) {
        if (!top.layout())
            button->show();
        button->setChecked(true);
    }
    dialog->show();
    settle();

    QStringList failures;
    QMap<QWidget*, QRect> areas;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        const char* const property = textProperty(widget);
        const bool isPlaced = widget->isVisible() || !widget->parentWidget()->layout();
        if (!property || !isPlaced)
            continue;
        auto* comboBox = qobject_cast<QComboBox*>(widget);
        for (int i = 0; i < (comboBox ? comboBox->count() : 1); ++i) {
            if (comboBox)
                comboBox->setCurrentIndex(i);
            if (isCut(widget, property))
                failures << QStringLiteral("%1 is cut in %2").arg(widget->objectName()).arg(i);
        }
        if (!widget->isVisible())
            continue;
        const QRect area = areaOf(widget, property);
        for (QWidget* other : areas.keys()) {
            if (area.intersects(areas.value(other)) && !widget->isAncestorOf(other) && !other->isAncestorOf(widget))
                failures << QStringLiteral("%1 meets %2").arg(widget->objectName(), other->objectName());
        }
        areas.insert(widget, area);
    }
    QVERIFY2(!areas.isEmpty(), "nothing was measured");
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
}

void LanguageTest::logRowsFit()
{
    auto* sessions = get<IRemoteConnectionDialog>();
    sessions->startRemoteToolsSession(QStringLiteral("1"), 1, QString(), 1, true);
    auto& list = child<QAbstractItemView>(sessions, "logsListView");
    child<QCheckBox>(sessions, "fileTransferInfoPanelCheckBox").setChecked(true);
    QTRY_VERIFY(list.isVisible());
    const QString path = QStringLiteral("C:/a long/path/that needs/to be cut/at its start.txt");
    for (const char* action :
         {"file-upload", "file-download", "dir-upload", "dir-download", "file-erase", "file-rename", "dir-erase",
          "dir-rename", "make-dir", "proc-kill", "serv-start", "serv-stop", "serv-restart", "serv-pause", "serv-resume",
          "session-suspend", "session-resume"}) {
        for (const char* status : {"reply", "abort", "cancel"}) {
            sessions->addLogEvent(0, QStringLiteral("file"), QLatin1String(action), path, QLatin1String(status));
            QTextDocument row;
            row.setDefaultFont(list.font());
            row.setHtml(list.model()->index(0, 0).data().toString());
            QVERIFY2(row.idealWidth() <= list.viewport()->width(), qPrintable(row.toPlainText()));
        }
    }
}

void LanguageTest::menusAreTranslated()
{
    QStringList texts;
    for (const Family& family : dialogFamilies()) {
        IBaseDialog* dialog = get(family.name);
        dialog->show();
        for (QWidget* widget : window(dialog).findChildren<QWidget*>()) {
            widget->setEnabled(true);
            QTimer::singleShot(0, this, [&texts] {
                QWidget* const menu = QApplication::activePopupWidget();
                if (!menu)
                    return;
                for (const QAction* action : menu->actions())
                    texts << action->text();
                menu->close();
            });
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(widget, &event);
            settle();
        }
    }
    QVERIFY2(!texts.isEmpty(), "no menu was shown");
    QVERIFY2(texts.filter(untranslated).isEmpty(), qPrintable(texts.join(QLatin1Char('\n'))));
}

int main(int argc, char** argv)
{
    prepareTestEnvironment(qgetenv("LANGUAGE"));
    QApplication application(argc, argv);
    LastTranslator lastTranslator;
    QCoreApplication::installTranslator(&lastTranslator);
    LanguageTest test;
    return runTest(test, argc, argv);
}
#include "tst_language.moc"
