#include "GuiTest.h"

#include "IApproveRemoteConnectionDialog.h"
#include "IRebootDialog.h"
#include "IRemoteConnectionDialog.h"
#include "IServiceDeskTicketDialog.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QTextDocument>
#include <QTextLayout>
#include <QtMath>

#include <functional>

/// What the dialogs look like in one language on a screen of one resolution. The library chooses its language when it
/// is loaded, and Qt the size of its fonts, so that each pair takes a program run of its own:
/// tst_language LANGUAGE RATIO.
class LanguageTest : public GuiTest {
    Q_OBJECT

public:
    QString language;
    float ratio = 1.0F;

private Q_SLOTS:
    void textsFit_data();
    void textsFit();
    void logRowsFit();
    void countdownIsDescribed();
    void qtSpeaksTheSameLanguage();
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
        return text.isEmpty() || room.contains(drawn);
    }

    QString description() const
    {
        const auto place = [](const QRect& rect) {
            return QStringLiteral("%1 x %2 at (%3, %4)")
                .arg(rect.width())
                .arg(rect.height())
                .arg(rect.x())
                .arg(rect.y());
        };
        return QStringLiteral("%1 \"%2\" takes %3, has %4").arg(widget->objectName(), text, place(drawn), place(room));
    }
};

/// What of @p text must be seen: the space above and below the letters may be cut, and the outer tenth of an em of a
/// line, which keeps letters apart.
QRect inkRect(const QString& text, const QFont& font, Qt::Alignment alignment, const QRect& room, bool wrap = false)
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

Text labelText(QLabel* label)
{
    const int margin = label->margin();
    const QRect room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    if (label->textFormat() != Qt::RichText) {
        QRect ink = inkRect(label->text(), label->font(), label->alignment(), room, label->wordWrap());
        if (label->inherits("LowHeading"))
            ink.moveTop((label->height() - ink.height()) / 2);
        return {label, label->text(), ink, room & label->rect()};
    }
    QTextDocument document;
    document.setDefaultFont(label->font());
    document.setDocumentMargin(0);
    document.setHtml(label->text());
    const QSize size = document.size().toSize();
    return {label, document.toPlainText(), QStyle::alignedRect(Qt::LeftToRight, label->alignment(), size, room), room};
}

Text buttonText(QAbstractButton* button, QStyle::SubElement contents, Qt::Alignment alignment)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    // The frame that shows the focus stands within the button.
    option.state.setFlag(QStyle::State_HasFocus, false);
    const QRect room = button->style()->subElementRect(contents, &option, button);
    return {button, button->text(), inkRect(button->text(), button->font(), alignment, room), room};
}

Text titleText(QGroupBox* box)
{
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.subControls = QStyle::SC_All;
    const QRect label = box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box);
    const QRect ink = inkRect(box->title(), box->font(), Qt::AlignLeft | Qt::AlignTop, label);
    return {box, box->title(), ink, box->rect().adjusted(0, 0, -10, 0)};
}

QVector<Text> itemTexts(QComboBox* comboBox)
{
    QStyleOptionComboBox option;
    option.initFrom(comboBox);
    option.subControls = QStyle::SC_All;
    const QRect room =
        comboBox->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, comboBox);
    QVector<Text> texts;
    for (int i = 0; i < comboBox->count(); ++i) {
        const QString item = comboBox->itemText(i);
        texts.append({comboBox, item, inkRect(item, comboBox->font(), Qt::AlignLeft | Qt::AlignVCenter, room), room});
    }
    return texts;
}

Text lineEditPlaceholder(QLineEdit* edit)
{
    QStyleOptionFrame option;
    option.initFrom(edit);
    const QRect room = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).adjusted(2, 0, -2, 0);
    return {edit, edit->placeholderText(),
            inkRect(edit->placeholderText(), edit->font(), Qt::AlignLeft | Qt::AlignVCenter, room), room};
}

Text textEditPlaceholder(QTextEdit* edit)
{
    const int margin = qRound(edit->document()->documentMargin());
    const QRect room = edit->viewport()->rect().adjusted(margin, margin, -margin, -margin);
    return {edit, edit->placeholderText(),
            inkRect(edit->placeholderText(), edit->font(), Qt::AlignLeft | Qt::AlignTop, room, true), room};
}

QVector<Text> textsOf(QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->text().isEmpty() ? QVector<Text>() : QVector<Text>{labelText(label)};
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        if (button->text().isEmpty())
            return {};
    }
    if (auto* button = qobject_cast<QPushButton*>(widget))
        return {buttonText(button, QStyle::SE_PushButtonContents, Qt::AlignCenter)};
    if (auto* button = qobject_cast<QCheckBox*>(widget))
        return {buttonText(button, QStyle::SE_CheckBoxContents, Qt::AlignLeft | Qt::AlignVCenter)};
    if (auto* button = qobject_cast<QRadioButton*>(widget))
        return {buttonText(button, QStyle::SE_RadioButtonContents, Qt::AlignLeft | Qt::AlignVCenter)};
    if (auto* box = qobject_cast<QGroupBox*>(widget))
        return {titleText(box)};
    if (auto* comboBox = qobject_cast<QComboBox*>(widget))
        return itemTexts(comboBox);
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        return {lineEditPlaceholder(edit)};
    if (auto* edit = qobject_cast<QTextEdit*>(widget))
        return {textEditPlaceholder(edit)};
    return {};
}

/// What no other text may cover: of a label and a title what is drawn, of a control all its room.
QRect ownArea(const Text& text, const QWidget* dialog)
{
    const bool isPassive = qobject_cast<QLabel*>(text.widget) || qobject_cast<QGroupBox*>(text.widget);
    const QRect area = isPassive ? text.drawn & text.widget->rect() : text.room;
    return area.translated(text.widget->mapTo(dialog, QPoint(0, 0)));
}

bool areRelated(const QWidget* first, const QWidget* second)
{
    return first == second || first->isAncestorOf(second) || second->isAncestorOf(first);
}

/// The heading of the login is 16 pixels high, and East Asian letters of its font lose one pixel above and below.
bool isKnownToBeHigher(const Text& text)
{
    return text.widget->objectName() == QLatin1String("label_2")
        && text.widget->window()->objectName() == QLatin1String("AuthorizationDialog")
        && text.room.adjusted(0, -1, 0, 1).contains(text.drawn);
}
} // namespace

Q_DECLARE_METATYPE(std::function<void(IBaseDialog*)>)

void LanguageTest::textsFit_data()
{
    using Preparation = std::function<void(IBaseDialog*)>;
    QTest::addColumn<QString>("name");
    QTest::addColumn<Preparation>("prepare");
    const auto noPreparation = [](IBaseDialog*) {};
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name << Preparation(noPreparation);

    QTest::newRow("shutdown") << QStringLiteral("RebootDialog") << Preparation([](IBaseDialog* dialog) {
        dynamic_cast<IRebootDialog*>(dialog)->setShutdown(true);
    });
    QTest::newRow("limits") << QStringLiteral("ServiceDeskTicketDialog") << Preparation([](IBaseDialog* dialog) {
        auto* ticket = dynamic_cast<IServiceDeskTicketDialog*>(dialog);
        ticket->setSubjectMaxLength(1000);
        ticket->setIssueDetailsMaxLength(32000);
    });
    for (const int onCancel : {0, 1}) {
        QTest::addRow("countdown %d", onCancel)
            << QStringLiteral("ApproveRemoteConnectionDialog") << Preparation([onCancel](IBaseDialog* dialog) {
                   auto* prompt = dynamic_cast<IApproveRemoteConnectionDialog*>(dialog);
                   prompt->setCountdownOnCancel(onCancel);
                   prompt->setCountdown(3600);
               });
    }
    for (const int type : {0, 1}) {
        for (const bool canEnd : {false, true}) {
            QTest::addRow("session %d %s", type, canEnd ? "running" : "ended")
                << QStringLiteral("RemoteConnectionDialog") << Preparation([type, canEnd](IBaseDialog* dialog) {
                       auto* sessions = dynamic_cast<IRemoteConnectionDialog*>(dialog);
                       const QString user = QStringLiteral("Maximiliane Mustermann-Beispiel");
                       // A clock of several days.
                       sessions->addRemoteControlSession(QStringLiteral("1"), user, 1, canEnd);
                       sessions->startRemoteToolsSession(QStringLiteral("2"), type, user, 1, canEnd);
                       child<QCheckBox>(dialog, "fileTransferInfoPanelCheckBox").setChecked(true);
                   });
        }
    }
}

void LanguageTest::textsFit()
{
    QFETCH(QString, name);
    QFETCH(std::function<void(IBaseDialog*)>, prepare);
    gui().setRatio(ratio);
    IBaseDialog* dialog = get(name);
    QWidget& top = window(dialog);
    if (!top.layout()) {
        // Everything that hosts and branding files can bring up.
        const QList<QPushButton*> buttons = top.findChildren<QPushButton*>();
        for (QPushButton* button : buttons)
            button->show();
    }
    prepare(dialog);
    dialog->show();
    settle();

    QStringList failures;
    QVector<Text> visibleTexts;
    const QList<QWidget*> widgets = top.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const bool isPlaced = widget->isVisible() || !widget->parentWidget()->layout();
        if (!isPlaced)
            continue;
        const QVector<Text> texts = textsOf(widget);
        for (const Text& text : texts) {
            if (!text.fits() && !isKnownToBeHigher(text))
                failures << text.description();
            if (widget->isVisible())
                visibleTexts.append(text);
        }
    }
    for (int i = 0; i < visibleTexts.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            const Text& first = visibleTexts.at(j);
            const Text& second = visibleTexts.at(i);
            if (!areRelated(first.widget, second.widget) && ownArea(first, &top).intersects(ownArea(second, &top)))
                failures << first.description() + QStringLiteral(" and meets ") + second.description();
        }
    }
    QVERIFY2(!visibleTexts.isEmpty(), "nothing was measured");
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
    QStringList failures;
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
            if (row.idealWidth() > list.viewport()->width())
                failures << QStringLiteral("%1 of %2: %3")
                                .arg(row.idealWidth())
                                .arg(list.viewport()->width())
                                .arg(row.toPlainText());
        }
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
}

void LanguageTest::countdownIsDescribed()
{
    auto* prompt = get<IApproveRemoteConnectionDialog>(QStringLiteral("1"));
    for (const qint64 seconds : {1, 2, 5, 30}) {
        prompt->setCountdown(seconds);
        prompt->show();
        QAccessibleInterface* cancel = QAccessible::queryAccessibleInterface(&child(prompt, "cancelButton"));
        const QString description = cancel->text(QAccessible::Description);
        QVERIFY2(description.contains(QString::number(seconds)), qPrintable(description));
        const bool isEnglish = description.endsWith(QLatin1String(" left to answer"));
        QCOMPARE(isEnglish, language == QLatin1String("en"));
        prompt->hide();
    }
}

void LanguageTest::qtSpeaksTheSameLanguage()
{
    const QDir catalogues(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (catalogues.entryList({QStringLiteral("qtbase_%1*.qm").arg(language)}).isEmpty())
        QSKIP("Qt's own catalogue of this language is not installed");
    gui();
    QLineEdit edit;
    const QScopedPointer<QMenu> menu(edit.createStandardContextMenu());
    const QString undo = menu->actions().constFirst()->text().section(QLatin1Char('\t'), 0, 0);
    if (language == QLatin1String("de"))
        QCOMPARE(undo, QStringLiteral("&Rückgängig"));
    QCOMPARE(undo == QLatin1String("&Undo"), language == QLatin1String("en"));
}

int main(int argc, char** argv)
{
    if (argc < 3)
        qFatal("usage: tst_language LANGUAGE RATIO [options of Qt Test]");
    LanguageTest test;
    test.language = QString::fromLatin1(argv[1]);
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
