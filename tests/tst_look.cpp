#include "GuiTest.h"

#include <QDirIterator>
#include <QGroupBox>
#include <QPushButton>
#include <QTemporaryDir>

#include <cmath>

/// What the library carries to be looked at: the resources, and the contrast of every text against what lies behind.
class LookTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void resources();
    void fineScreenPicturesArePicked();
    void contrast_data();
    void contrast();
};

namespace {
QStringList expectedResources()
{
    QStringList names;
    const auto add = [&names](const QString& pattern, const char* list) {
        for (const QString& name : QString::fromLatin1(list).split(QLatin1Char(' ')))
            names << pattern.arg(name);
    };
    add(QStringLiteral(":/%1"), "eula.html styles/appStyleSheet.qss widgets/takeoverpanel.ui");
    add(QStringLiteral(":/translations/Gui_%1.qm"), "da de en es fr it ja ko nl pt ru tr zh");
    for (const char* state : {"normal", "hover", "pressed"})
        add(QStringLiteral(":/images/%1_%2.png").arg(QStringLiteral("%1"), QLatin1String(state)),
            "LoginButton Button_green Button_gray Button ButtonCloseAlone");
    add(QStringLiteral(":/images/progress bar/%1.png"),
        "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24");
    add(QStringLiteral(":/images/icons_16x16/%1_16.png"), "normal offline install1 install2 update1 update2 update3");
    add(QStringLiteral(":/images/%1.png"),
        "error ok LoginBackground windowFrame header LoginField LoginFieldDisabled username password "
        "dropdown_background UpNormal UpHover UpPressed DownNormal DownHover DownPressed arrow_up arrow_down "
        "activate_icon auth_icon online_account icon_status_window logo_status_window close_status_window remote-logo "
        "remote-connection-arrow-up remote-connection-arrow-down TXR-File-Transfer-Icon txr_banner_blue "
        "zent_logo_97x98 zent_logo_47x48 about_brisel_1 brisel-logo RUV_caption InstallerMainIcon brisel_caption");
    names.sort();
    return names;
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastRatio(const QColor& first, const QColor& second)
{
    const double one = luminance(first);
    const double other = luminance(second);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}

/// The contrast of a widget's text against the lightest or darkest pixel behind it, both taken from what is painted; 0
/// where nothing of the text is.
double textContrast(QWidget& widget, const char* textProperty)
{
    QWidget& top = *widget.window();
    const QRect area(widget.mapTo(&top, QPoint()), widget.size());
    const auto paint = [&] { return top.grab(area).toImage().convertToFormat(QImage::Format_RGB32); };
    const QImage with = paint();
    const QVariant text = widget.property(textProperty);
    // A blank keeps what an empty field would show instead away.
    widget.setProperty(textProperty, QStringLiteral(" "));
    const QImage without = paint();
    widget.setProperty(textProperty, text);

    QVector<QColor> behind;
    QColor ink;
    double strongest = 0;
    for (int i = 0; i < with.width() * with.height(); ++i) {
        const QPoint position(i % with.width(), i / with.width());
        const QColor front = with.pixelColor(position);
        const QColor back = without.pixelColor(position);
        if (front == back)
            continue;
        behind << back;
        if (contrastRatio(front, back) > strongest) {
            strongest = contrastRatio(front, back);
            ink = front;
        }
    }
    for (const QColor& back : qAsConst(behind))
        strongest = qMin(strongest, contrastRatio(ink, back));
    return strongest;
}

/// Texts whose colours and backgrounds are fixed by the product's design below what is asked elsewhere.
double requiredContrast(const QWidget& widget)
{
    const bool isInSession = widget.window()->objectName() == QLatin1String("RemoteConnectionDialog");
    if (isInSession && widget.objectName().contains(QRegularExpression(QStringLiteral("^(username|timeElapsed)"))))
        return 2.5;
    if (isInSession && qobject_cast<const QPushButton*>(&widget))
        return 3.8;
    const bool isLarge = widget.font().pointSizeF() >= (widget.font().bold() ? 14 : 18);
    return isLarge ? 3.0 : 4.5;
}

void showSomethingEverywhere(IBaseDialog* dialog, const Family& family)
{
    for (const Operation& operation : family.operations) {
        if (!operation.isGetter || operation.isSecret())
            continue;
        try {
            family.set(*dialog, operation.property(), QStringLiteral("Something to read"));
        } catch (const ScriptError&) {
            // Not a text.
        }
    }
    if (auto* session = dynamic_cast<IRemoteConnectionDialog*>(dialog)) {
        session->addRemoteControlSession(QStringLiteral("1"), QStringLiteral("Jane Doe"), 1, true);
        session->addRemoteControlSession(QStringLiteral("2"), QStringLiteral("John Doe"), 1, false);
        session->startRemoteToolsSession(QStringLiteral("3"), 1, QStringLiteral("Jane Doe"), 1, true);
    }
}
} // namespace

void LookTest::resources()
{
    QStringList found;
    for (const char* root : {":/styles", ":/widgets", ":/images", ":/translations"}) {
        for (QDirIterator entries(QLatin1String(root), QDir::Files, QDirIterator::Subdirectories); entries.hasNext();)
            found << entries.next();
    }
    found << QStringLiteral(":/eula.html");
    QStringList plain;
    for (const QString& name : qAsConst(found)) {
        QVERIFY2(QFile(name).size() > 100, qPrintable(name));
        QVERIFY2(!name.endsWith(QLatin1String(".png")) || !QImage(name).isNull(), qPrintable(name));
        QString coarse = name;
        if (coarse.remove(QStringLiteral("@2x")) == name)
            plain << name;
        else
            QCOMPARE(QImage(name).size(), 2 * QImage(coarse).size());
    }
    plain.sort();
    QCOMPARE(plain, expectedResources());

    QFile sheet(QStringLiteral(":/styles/appStyleSheet.qss"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QByteArray rules = sheet.readAll();
    QCOMPARE(rules.count('\n'), rules.count("\r\n"));
}

void LookTest::fineScreenPicturesArePicked()
{
    // Qt chooses by the screen, so this runs again in a process of its own with a scale factor of 2.
    if (qApp->devicePixelRatio() < 2)
        QSKIP("needs a fine screen");
    auto* dialog = show<IRebootDialog>();
    const QString arrow = QStringLiteral(":/images/arrow_down.png");
    const auto comboBoxWith = [&arrow, dialog, sheet = window(dialog).styleSheet()](const QString& picture) {
        window(dialog).setStyleSheet(QString(sheet).replace(arrow, QLatin1Char('"') + picture + QLatin1Char('"')));
        return child(dialog, "timeoutComboBox").grab().toImage();
    };
    const QTemporaryDir directory;
    const QString coarse = directory.filePath(QStringLiteral("coarse.png"));
    QVERIFY(QFile::copy(arrow, coarse));
    QCOMPARE(comboBoxWith(arrow), comboBoxWith(QStringLiteral(":/images/arrow_down@2x.png")));
    QVERIFY(comboBoxWith(arrow) != comboBoxWith(coarse));
}

void LookTest::contrast_data()
{
    familyRows();
}

void LookTest::contrast()
{
    QFETCH(QString, family);
    IBaseDialog* dialog = get(family);
    showSomethingEverywhere(dialog, dialogFamily(family));
    showActive(dialog);
    // Neither caret nor focus frame are text.
    if (QWidget* focused = window(dialog).focusWidget())
        focused->clearFocus();
    settle();
    int measured = 0;
    QStringList weak;
    const auto check = [&](QWidget* widget, const char* textProperty, const char* state) {
        const double ratio = textContrast(*widget, textProperty);
        measured += ratio > 0 ? 1 : 0;
        if (ratio > 0 && ratio < requiredContrast(*widget))
            weak << QStringLiteral("%1 %2: %3").arg(widget->objectName(), QLatin1String(state)).arg(ratio, 0, 'f', 2);
    };
    for (QWidget* widget : window(dialog).findChildren<QWidget*>()) {
        const char* const textProperty = qobject_cast<QGroupBox*>(widget) ? "title" : "text";
        if (!widget->isVisible() || !widget->isEnabled() || widget->property(textProperty).toString().isEmpty())
            continue;
        check(widget, textProperty, "");
        if (auto* button = qobject_cast<QPushButton*>(widget)) {
            QTest::mouseMove(button, QPoint(2, 2));
            QTest::mouseMove(button);
            check(button, textProperty, "under the mouse");
            button->setDown(true);
            check(button, textProperty, "pressed");
            button->setDown(false);
        }
    }
    QVERIFY2(weak.isEmpty(), qPrintable(weak.join(QLatin1String(", "))));
    QVERIFY(measured > 3);
}

GUI_TEST_MAIN(LookTest)
#include "tst_look.moc"
