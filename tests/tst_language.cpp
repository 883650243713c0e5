#include "GuiTest.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDebug>
#include <QGroupBox>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextLayout>
#include <QtMath>

/// What the dialogs look like in one language on a screen of one resolution. The library chooses its language when it
/// is loaded, and Qt the size of its fonts, so that each pair takes a program run of its own:
/// tst_language LANGUAGE RATIO.
class LanguageTest : public GuiTest {
    Q_OBJECT

public:
    float ratio = 1.0F;

private Q_SLOTS:
    void textsFit_data();
    void textsFit();
    void logRowsFit();
};

namespace {
/// A text on screen and its room, both in the coordinates of the widget.
struct Text {
    QWidget* widget;
    QString text;
    QRect drawn;
    QRect room;

    bool fits() const
    {
        // The heading of the login is 16 pixels high, and East Asian letters of its font lose one pixel above and
        // below.
        const bool isLoginHeading = widget->objectName() == QLatin1String("label_2")
            && widget->window()->objectName() == QLatin1String("AuthorizationDialog");
        const int tolerance = isLoginHeading ? 1 : 0;
        return text.isEmpty() || room.adjusted(0, -tolerance, 0, tolerance).contains(drawn);
    }

    /// What no other text may cover: of a label and a title what is drawn, of a control all its room.
    QRect area() const
    {
        const bool isPassive = qobject_cast<QLabel*>(widget) || qobject_cast<QGroupBox*>(widget);
        const QRect own = isPassive ? drawn & widget->rect() : room;
        return own.translated(widget->mapTo(widget->window(), QPoint(0, 0)));
    }

    bool meets(const Text& other) const
    {
        const bool areRelated =
            widget == other.widget || widget->isAncestorOf(other.widget) || other.widget->isAncestorOf(widget);
        return !areRelated && area().intersects(other.area());
    }
};

QDebug operator<<(QDebug debug, const Text& text)
{
    return debug << text.widget->objectName() << text.text << "takes" << text.drawn << "has" << text.room;
}

/// What of @p text must be seen: the space above and below the letters may be cut, and the outer tenth of an em of a
/// line, which keeps letters apart.
QRect inkRect(const QString& text, const QFont& font, Qt::Alignment alignment, const QRect& room, bool wrap)
{
    QString lines = text;
    QTextLayout layout(lines.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator)), font);
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(wrap ? QTextOption::WordWrap : QTextOption::ManualWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const int spacing = qRound(QFontInfo(font).pixelSize() / 10.0);
    QRect ink;
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        const QRectF box = line.naturalTextRect();
        const QRect letters = QFontMetrics(font).tightBoundingRect(lines.mid(line.textStart(), line.textLength()));
        ink |= QRect(qFloor(box.left()) + spacing, qRound(height + line.ascent()) + letters.top(),
                     qCeil(box.width()) - 2 * spacing, letters.height());
        height += line.height();
    }
    layout.endLayout();
    const QSize size(room.width(), qCeil(height));
    return ink.translated(QStyle::alignedRect(Qt::LeftToRight, alignment, size, room).topLeft());
}

template <class Option>
Option styleOption(const QWidget* widget)
{
    Option option;
    option.initFrom(widget);
    // The frame that shows the focus stands within a button.
    option.state.setFlag(QStyle::State_HasFocus, false);
    return option;
}

/// The texts that the library puts into @p widget, whether they are shown now or not.
QVector<Text> textsOf(QWidget* widget)
{
    const QStyle& style = *widget->style();
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    const auto place = [widget](const QString& text, const QRect& room, Qt::Alignment alignment, bool wrap = false) {
        return Text{widget, text, inkRect(text, widget->font(), alignment, room, wrap), room};
    };
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        const bool isRich = label->textFormat() == Qt::RichText;
        const QString text = isRich ? QTextDocumentFragment::fromHtml(label->text()).toPlainText() : label->text();
        const int margin = label->margin();
        const QRect room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
        Text result = place(text, room, label->alignment(), label->wordWrap());
        if (label->inherits("LowHeading"))
            result.drawn.moveTop((label->height() - result.drawn.height()) / 2);
        return text.isEmpty() ? QVector<Text>() : QVector<Text>{result};
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        if (button->text().isEmpty())
            return {};
        auto option = styleOption<QStyleOptionButton>(button);
        option.text = button->text();
        if (qobject_cast<QPushButton*>(button)) {
            const QRect room = style.subElementRect(QStyle::SE_PushButtonContents, &option, button);
            return {place(button->text(), room, Qt::AlignCenter)};
        }
        const bool isBox = qobject_cast<QCheckBox*>(button);
        const auto contents = isBox ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents;
        return {place(button->text(), style.subElementRect(contents, &option, button), left)};
    }
    if (auto* box = qobject_cast<QGroupBox*>(widget)) {
        auto option = styleOption<QStyleOptionGroupBox>(box);
        option.text = box->title();
        const QRect label = style.subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box);
        Text title = place(box->title(), label, Qt::AlignLeft | Qt::AlignTop);
        title.room = box->rect().adjusted(0, 0, -10, 0);
        return {title};
    }
    if (auto* comboBox = qobject_cast<QComboBox*>(widget)) {
        const auto option = styleOption<QStyleOptionComboBox>(comboBox);
        const QRect room = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, comboBox);
        QVector<Text> items;
        for (int i = 0; i < comboBox->count(); ++i)
            items << place(comboBox->itemText(i), room, left);
        return items;
    }
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        const auto option = styleOption<QStyleOptionFrame>(edit);
        const QRect room = style.subElementRect(QStyle::SE_LineEditContents, &option, edit);
        return {place(edit->placeholderText(), room.adjusted(2, 0, -2, 0), left)};
    }
    if (auto* edit = qobject_cast<QTextEdit*>(widget)) {
        const int margin = qRound(edit->document()->documentMargin());
        const QRect room = edit->viewport()->rect().adjusted(margin, margin, -margin, -margin);
        return {place(edit->placeholderText(), room, Qt::AlignLeft | Qt::AlignTop, true)};
    }
    return {};
}
} // namespace

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
    for (const char* session : {"0, %1, 1, false", "0, %1, 1, true", "1, %1, 1, false", "1, %1, 1, true"}) {
        const QString tools = QString::fromLatin1(session).arg(QStringLiteral("\"Maximiliane Mustermann-Beispiel\""));
        const QString calls = QStringLiteral(R"({"addRemoteControlSession": ["1", %1],)"
                                             R"( "startRemoteToolsSession": ["2", %2]})")
                                  .arg(tools.mid(3), tools);
        textRow({"RemoteConnectionDialog", calls.toUtf8().constData()});
    }
}

void LanguageTest::textsFit()
{
    QFETCH(QString, name);
    QFETCH(QString, calls);
    gui().setRatio(ratio);
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
    const auto fail = [&failures](const auto&... what) {
        QString failure;
        (QDebug(&failure).noquote() << ... << what);
        failures << failure;
    };
    QVector<Text> visible;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        const bool isPlaced = widget->isVisible() || !widget->parentWidget()->layout();
        for (const Text& text : isPlaced ? textsOf(widget) : QVector<Text>()) {
            if (!text.fits())
                fail(text);
            for (const Text& other : qAsConst(visible)) {
                if (widget->isVisible() && text.meets(other))
                    fail(text, "and meets", other);
            }
            if (widget->isVisible())
                visible << text;
        }
    }
    QVERIFY2(!visible.isEmpty(), "nothing was measured");
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
}

void LanguageTest::logRowsFit()
{
    gui().setRatio(ratio);
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

int main(int argc, char** argv)
{
    if (argc < 3)
        qFatal("usage: tst_language LANGUAGE RATIO [options of Qt Test]");
    LanguageTest test;
    test.ratio = QByteArray(argv[2]).toFloat();
    // Hosts scale the dialogs on screens of a higher logical resolution, where fonts grow by themselves.
    qputenv("QT_FONT_DPI", QByteArray::number(qRound(96 * test.ratio)));
    prepareTestEnvironment();
    qputenv("LANGUAGE", argv[1]);
    argv[2] = argv[0];
    argc -= 2;
    argv += 2;
    QApplication application(argc, argv);
    return runTest(test, argc, argv);
}
#include "tst_language.moc"
