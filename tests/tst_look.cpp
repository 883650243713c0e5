#include "GuiTest.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QFileInfo>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

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
    QStringList names{QStringLiteral(":/eula.html"), QStringLiteral(":/styles/appStyleSheet.qss"),
                      QStringLiteral(":/widgets/takeoverpanel.ui")};
    const auto add = [&names](const char* pattern, const QString& list) {
        for (const QString& name : list.split(QLatin1Char(' ')))
            names << QString::fromLatin1(pattern).arg(name);
    };
    for (int frame = 1; frame <= 24; ++frame)
        names << QStringLiteral(":/images/progress bar/%1.png").arg(frame);
    for (const char* state : {"normal", "hover", "pressed"}) {
        add(":/images/%1.png",
            QStringLiteral("LoginButton_%1 Button_green_%1 Button_gray_%1 Button_%1 "
                           "ButtonCloseAlone_%1")
                .arg(QLatin1String(state)));
    }
    add(":/images/icons_16x16/%1_16.png", QStringLiteral("normal offline install1 install2 update1 update2 update3"));
    add(":/images/%1.png",
        QStringLiteral("error ok LoginBackground windowFrame header LoginField LoginFieldDisabled username password "
                       "dropdown_background UpNormal UpHover UpPressed DownNormal DownHover DownPressed arrow_up "
                       "arrow_down activate_icon auth_icon online_account icon_status_window logo_status_window "
                       "close_status_window remote-logo remote-connection-arrow-up remote-connection-arrow-down "
                       "TXR-File-Transfer-Icon txr_banner_blue zent_logo_97x98 zent_logo_47x48 about_brisel_1 "
                       "brisel-logo RUV_caption InstallerMainIcon brisel_caption"));
    add(":/translations/Gui_%1.qm", QStringLiteral("da de en es fr it ja ko nl pt ru tr zh"));
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

/// The contrast of a widget's text against the lightest or darkest pixel behind it, both taken from what is painted.
double textContrast(QWidget& widget, const QByteArray& textProperty)
{
    QWidget& top = *widget.window();
    const QRect area(widget.mapTo(&top, QPoint()), widget.size());
    const auto paint = [&] { return top.grab(area).toImage().convertToFormat(QImage::Format_RGB32); };
    const QImage with = paint();
    const QVariant text = widget.property(textProperty.constData());
    // A blank keeps what an empty field would show instead away.
    widget.setProperty(textProperty.constData(), QStringLiteral(" "));
    const QImage without = paint();
    widget.setProperty(textProperty.constData(), text);

    QVector<QPoint> inked;
    QColor ink;
    double strongest = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) == without.pixel(x, y))
                continue;
            inked << QPoint(x, y);
            const double ratio = contrastRatio(with.pixelColor(x, y), without.pixelColor(x, y));
            if (ratio > strongest) {
                strongest = ratio;
                ink = with.pixelColor(x, y);
            }
        }
    }
    double weakest = strongest;
    for (const QPoint& position : qAsConst(inked))
        weakest = qMin(weakest, contrastRatio(ink, without.pixelColor(position)));
    return weakest;
}

/// Whether @p picture, whose corners are transparent, is painted somewhere in @p rendering pixel by pixel.
bool shows(const QImage& rendering, const QImage& picture)
{
    const auto matchesAt = [&](int left, int top) {
        QImage expected(picture.size(), QImage::Format_RGB32);
        expected.fill(rendering.pixelColor(left, top));
        QPainter(&expected).drawImage(0, 0, picture);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qAbs(qGray(expected.pixel(x, y)) - qGray(rendering.pixel(left + x, top + y))) > 6)
                    return false;
            }
        }
        return true;
    };
    for (int top = 0; top + picture.height() <= rendering.height(); ++top) {
        for (int left = 0; left + picture.width() <= rendering.width(); ++left) {
            if (matchesAt(left, top))
                return true;
        }
    }
    return false;
}

bool isLarge(const QFont& font)
{
    return font.pointSizeF() >= 18 || (font.bold() && font.pointSizeF() >= 14);
}

/// Texts whose colours and backgrounds are fixed by the product's design below what is asked elsewhere.
double requiredContrast(const QWidget& widget)
{
    const QString window = widget.window()->objectName();
    if (window == QLatin1String("RemoteConnectionDialog")) {
        static const QStringList names{QStringLiteral("username"), QStringLiteral("timeElapsed"),
                                       QStringLiteral("usernameFileTransfer"),
                                       QStringLiteral("timeElapsedFileTransfer")};
        if (names.contains(widget.objectName()))
            return 2.5;
        if (qobject_cast<const QPushButton*>(&widget))
            return 3.8;
    }
    return isLarge(widget.font()) ? 3.0 : 4.5;
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
    gui();
    QStringList found;
    for (const char* root : {":/eula.html", ":/styles", ":/widgets", ":/images", ":/translations"}) {
        const QString path = QLatin1String(root);
        if (QFileInfo(path).isFile())
            found << path;
        for (QDirIterator entries(path, QDir::Files, QDirIterator::Subdirectories); entries.hasNext();)
            found << entries.next();
    }
    QStringList named = found;
    const QRegularExpression fine(QStringLiteral("@2x\\.png$"));
    for (const QString& variant : named.filter(fine)) {
        const QString name = QString(variant).replace(fine, QStringLiteral(".png"));
        QVERIFY2(found.contains(name), qPrintable(variant));
        QCOMPARE(QImage(variant).size(), 2 * QImage(name).size());
        named.removeOne(variant);
    }
    named.sort();
    QCOMPARE(named, expectedResources());
    for (const QString& name : named) {
        if (name.endsWith(QLatin1String(".png")))
            QVERIFY2(!QImage(name).isNull(), qPrintable(name));
        else
            QVERIFY2(QFileInfo(name).size() > 100, qPrintable(name));
    }
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
    const QImage combo = child(dialog, "timeoutComboBox").grab().toImage();
    QImage arrow(QStringLiteral(":/images/arrow_down@2x.png"));
    arrow.setDevicePixelRatio(1);
    const QImage coarseArrow = QImage(QStringLiteral(":/images/arrow_down.png")).scaled(arrow.size());
    QVERIFY(shows(combo, arrow));
    QVERIFY(!shows(combo, coarseArrow));
}

void LookTest::contrast_data()
{
    QTest::addColumn<QString>("name");
    for (const Family& family : dialogFamilies())
        QTest::newRow(qPrintable(family.name)) << family.name;
}

void LookTest::contrast()
{
    QFETCH(QString, name);
    IBaseDialog* dialog = get(name);
    showSomethingEverywhere(dialog, dialogFamily(name));
    showActive(dialog);
    // Neither caret nor focus frame are text.
    if (QWidget* focused = window(dialog).focusWidget())
        focused->clearFocus();
    settle();
    int measured = 0;
    QStringList weak;
    const auto check = [&](QWidget& widget, const char* textProperty, const char* state) {
        const double ratio = textContrast(widget, textProperty);
        if (ratio == 0)
            return;
        ++measured;
        if (ratio < requiredContrast(widget))
            weak << QStringLiteral("%1 %2: %3").arg(widget.objectName(), QLatin1String(state)).arg(ratio, 0, 'f', 2);
    };
    const auto widgets = window(dialog).findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        if (qobject_cast<QGroupBox*>(widget))
            check(*widget, "title", "");
        else if (!widget->property("text").toString().isEmpty())
            check(*widget, "text", "");
        auto* button = qobject_cast<QPushButton*>(widget);
        if (!button || button->text().isEmpty())
            continue;
        QTest::mouseMove(button, QPoint(2, 2));
        QTest::mouseMove(button);
        check(*button, "text", "under the mouse");
        button->setDown(true);
        check(*button, "text", "pressed");
        button->setDown(false);
    }
    QVERIFY2(weak.isEmpty(), qPrintable(weak.join(QLatin1String(", "))));
    QVERIFY(measured > 3);
}

GUI_TEST_MAIN(LookTest)
#include "tst_look.moc"
