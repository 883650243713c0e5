#include "GuiTest.h"
#include "ScriptPlayer.h"

namespace {
const QDir references(QStringLiteral(REFERENCES "/") + qEnvironmentVariable("GUI_TEST_PICTURES"));
// The references are drawn by Qt 5; with Qt 6 some lines of text stand a pixel lower.
constexpr int tileSide = QT_VERSION_MAJOR == 5 ? 4 : 8;
constexpr int tolerance = QT_VERSION_MAJOR == 5 ? 40 : 28; // of 255, in any channel of a tile's mean
const bool isRenewing = qEnvironmentVariableIsSet("GUI_RENEW_PICTURES");

/// Installed before the library is loaded, it is asked for the words of Qt that the library's translator does not know.
struct LastTranslator final : QTranslator {
    static inline QStringList asked;

    QString translate(const char* context, const char* source, const char* /*comment*/, int /*n*/) const override
    {
        // The sign between the keys of a shortcut is the same everywhere.
        if (*context == 'Q' && qstrcmp(source, "+") != 0)
            asked << QLatin1String(source);
        return QString();
    }
};

/// The mean colours of tiles are compared: glyphs that another version of the font library draws a little differently
/// hardly change a tile, a widget that moved, vanished or is covered changes many.
bool areAlike(const QImage& picture, const QImage& reference)
{
    const auto tiles = [](const QImage& image) {
        return image.scaled(image.size() / tileSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QImage actual = tiles(picture);
    const QImage expected = tiles(reference);
    return picture.size() == reference.size()
        && std::equal(actual.constBits(), actual.constBits() + actual.sizeInBytes(), expected.constBits(),
                      [](int one, int other) { return qAbs(one - other) <= tolerance; });
}

/// The property that holds the text which the library or a host puts into @p widget; null if there is none.
const char* textProperty(const QWidget* widget)
{
    if (qobject_cast<const QGroupBox*>(widget))
        return "title";
    return widget->metaObject()->indexOfProperty("text") < 0 ? nullptr : "text";
}

/// What painting the text of a widget changes.
struct Ink {
    /// The pixels, in the widget: what is painted there, and what is without the text.
    QVector<QPair<QRgb, QRgb>> pixels;
    QRect box;
};

/// Of the widget alone, or of the window with what lies behind and above the text.
Ink inkOf(QWidget* widget, const char* property, bool inWindow = false)
{
    Ink ink;
    const QVariant text = widget->property(property);
    if (text.toString().isEmpty())
        return ink;
    QWidget* painted = inWindow ? widget->window() : widget;
    const QRect area(widget->mapTo(painted, QPoint()), widget->size());
    const auto paint = [&] { return painted->grab(area).toImage().convertToFormat(QImage::Format_ARGB32); };
    const QImage with = paint();
    // A blank keeps what an empty field would show instead away.
    widget->setProperty(property, text.type() == QVariant::Int ? QVariant(-1) : QVariant(QStringLiteral(" ")));
    const QImage without = paint();
    widget->setProperty(property, text);
    const auto* before = reinterpret_cast<const QRgb*>(without.constBits());
    const auto* after = reinterpret_cast<const QRgb*>(with.constBits());
    for (int i = 0; i < with.width() * with.height(); ++i) {
        if (after[i] != before[i]) {
            ink.pixels.append({after[i], before[i]});
            ink.box |= QRect(i % with.width(), i / with.width(), 1, 1);
        }
    }
    return ink;
}

double contrastRatio(const QColor& first, const QColor& second)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor& color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF()) + 0.05;
    };
    const double ratio = luminance(first) / luminance(second);
    return qMax(ratio, 1 / ratio);
}

/// The contrast of a text's strongest pixel against the lightest or darkest one behind the text.
double contrastOf(const Ink& ink)
{
    const auto strongest =
        std::max_element(ink.pixels.begin(), ink.pixels.end(), [](const auto& one, const auto& other) {
            return contrastRatio(one.first, one.second) < contrastRatio(other.first, other.second);
        });
    double result = 21;
    for (const auto& pixel : ink.pixels)
        result = qMin(result, contrastRatio(strongest->first, pixel.second));
    return result;
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

/// All that a screen reader can walk to from @p root.
QVector<QAccessibleInterface*> partsOf(QAccessibleInterface* root)
{
    QVector<QAccessibleInterface*> parts{root};
    for (int i = 0; i < root->childCount(); ++i) {
        if (QAccessibleInterface* part = root->child(i))
            parts << partsOf(part);
    }
    return parts;
}

/// What is told of @p part, without the numbers that depend on time and on what was shown before.
QString toldOf(QAccessibleInterface* part)
{
    QString told = QString::fromLatin1(qAccessibleRoleString(part->role()));
    for (const QAccessible::Text type : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
        told += QStringLiteral(" \"%1\"").arg(part->text(type).simplified());
    if (QAccessibleValueInterface* value = part->valueInterface())
        told += QLatin1Char(' ') + value->currentValue().toString();
    const QAccessible::State state = part->state();
    const auto tell = [&told](bool holds, const char* word) { told += QLatin1String(holds ? word : ""); };
    tell(state.disabled, " disabled");
    tell(state.checked, " checked");
    tell(state.editable, " editable");
    tell(state.passwordEdit, " password");
    // A window that is shown without being activated gets a default button from Qt 5, none from Qt 6.
    const auto* widget = qobject_cast<const QWidget*>(part->object());
    const bool wasActivated = widget && !widget->window()->testAttribute(Qt::WA_ShowWithoutActivating);
    tell(state.defaultButton && (wasActivated || state.focused), " default");
    tell(state.focused, " focused");
    return told.replace(QRegularExpression(QStringLiteral("#\\d+|\\d+(?= seconds)")), QStringLiteral("N"));
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
    const int all = inkOf(widget, property).pixels.size();
    widget->setMaximumSize(maximum);
    widget->resize(size);
    // The heading of the login is 16 pixels high, and East Asian letters of its font lose one pixel above and below.
    const bool isLoginHeading = widget->objectName() == QLatin1String("label_2")
        && widget->window()->objectName() == QLatin1String("AuthorizationDialog");
    constexpr int lessThanALetter = 6;
    // On the frame of a button a text is as good as cut, and so is a word that reaches the edge of its label.
    const int frame = qobject_cast<QPushButton*>(widget) ? 4 : wraps ? 1 : 0;
    return ink.pixels.size() < all - (isLoginHeading ? all / 20 : lessThanALetter)
        || (!ink.box.isEmpty() && !widget->rect().adjusted(0, 0, -frame, 0).contains(ink.box));
}
} // namespace

/// Every dialog in the states of its gallery: what it looks like, what a screen reader finds there, where the keyboard
/// leads, and whether its texts can be read in the language of GUI_TEST_LANGUAGE at the resolution of QT_FONT_DPI.
class StatesTest : public GuiTest {
    Q_OBJECT

private:
    using Look = std::function<void(QWidget& top, const QFileInfo& picture)>;

    bool isPlaying = false;

    /// Spinner, countdown and clocks stand still while the gallery is played, however long that takes.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* timer = event->type() == QEvent::Timer ? qobject_cast<QTimer*>(watched) : nullptr;
        const bool isClock = timer && (timer->interval() == 200 || timer->interval() == 1000);
        return (isPlaying && isClock) || GuiTest::eventFilter(watched, event);
    }

    /// Plays the gallery and calls @p look in each state, with the picture that was taken of it.
    void play(const Look& look)
    {
        const QTemporaryDir directory;
        const QScopedValueRollback<bool> playing(isPlaying, true);
        for (const Family& family : dialogFamilies()) {
            ScriptPlayer player(gui(), ScriptPlayer::Mode::Unattended, QDir(directory.path()));
            connect(&player, &ScriptPlayer::output, this, [&](const QJsonObject& output) {
                const QFileInfo picture(output.value(QLatin1String("picture")).toString());
                const QWidgetList windows = QApplication::topLevelWidgets();
                for (QWidget* top : windows) {
                    if (picture.isFile() && top->isVisible() && top->objectName() == family.name)
                        look(*top, picture);
                }
            });
            QSignalSpy finished(&player, &ScriptPlayer::finished);
            QFile file(QStringLiteral(GALLERY "/%1.jsonl").arg(family.name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            while (!file.atEnd())
                player.addLine(file.readLine());
            player.endInput();
            QVERIFY(finished.wait(120000));
            QCOMPARE(player.errorCount(), 0);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        static LastTranslator lastTranslator;
        QCoreApplication::installTranslator(&lastTranslator);
        GuiTest::initTestCase();
    }

    void init()
    {
        GuiTest::init();
        // Hosts scale the dialogs on screens of a higher logical resolution, where fonts grow by themselves.
        gui().setRatio(static_cast<float>(QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0));
    }

    void pictures()
    {
        QStringList changed;
        QStringList rendered;
        play([&](QWidget&, const QFileInfo& file) {
            // On fine screens some states are enough.
            if (qEnvironmentVariableIsSet("GUI_TEST_PICTURES") && !references.exists(file.fileName()))
                return;
            rendered << file.fileName();
            const QImage picture(file.filePath());
            const QString reference = references.filePath(file.fileName());
            if (isRenewing)
                picture.save(reference);
            if (areAlike(picture, QImage(reference)))
                return;
            changed << QDir::current().filePath(QStringLiteral("changed-") + file.fileName());
            picture.save(changed.last());
        });
        const QString advice = QStringLiteral("compare these with %1: ").arg(references.path());
        QVERIFY2(changed.isEmpty(), qPrintable(advice + changed.join(QLatin1String(", "))));
        rendered.sort();
        QCOMPARE(rendered, references.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name));
    }

    /// Apart from the pictures, because walking through a dialog changes its later states.
    void access()
    {
        QStringList found;
        play([&](QWidget& top, const QFileInfo& state) {
            top.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&top));
            for (QAccessibleInterface* part : partsOf(QAccessible::queryAccessibleInterface(&top))) {
                const bool matters = part->state().focusable || part->role() == QAccessible::Button
                    || part->role() == QAccessible::Graphic || part->role() == QAccessible::ProgressBar
                    || part->object() == &top;
                // The rows of the log show local time.
                if (matters && !part->state().invisible && part->role() != QAccessible::ListItem)
                    found << QStringLiteral("%1 %2: %3")
                                 .arg(state.baseName(), part->object()->objectName(), toldOf(part));
            }
            QVector<QWidget*> chain;
            QStringList names;
            for (;;) {
                press(dynamic_cast<IBaseDialog*>(&top), Qt::Key_Tab);
                QWidget* focused = top.focusWidget();
                if (!focused || chain.contains(focused))
                    break;
                chain << focused;
                names << focused->objectName();
                const QRect area = QRect(focused->mapTo(&top, QPoint()), focused->size()).adjusted(-3, -3, 3, 3);
                const QImage with = top.grab(area).toImage();
                focused->clearFocus();
                QVERIFY2(with != top.grab(area).toImage(), qPrintable(names.last()));
                focused->setFocus(Qt::TabFocusReason);
            }
            found << QStringLiteral("%1 Tab: %2").arg(state.baseName(), names.join(QLatin1Char(' ')));
        });
        QFile file(references.filePath(QStringLiteral("access.txt")));
        if (isRenewing && file.open(QIODevice::WriteOnly)) {
            file.write(found.join(QLatin1Char('\n')).toUtf8() + '\n');
            file.close();
        }
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(found, QString::fromUtf8(file.readAll()).trimmed().split(QLatin1Char('\n')));
    }

    void contrast()
    {
        int measured = 0;
        QStringList weak;
        play([&](QWidget& top, const QFileInfo& state) {
            // Neither caret nor focus frame are text.
            if (top.focusWidget())
                top.focusWidget()->clearFocus();
            const QList<QWidget*> widgets = top.findChildren<QWidget*>();
            for (QWidget* widget : widgets) {
                const char* const property = textProperty(widget);
                if (!property || !widget->isVisible() || !widget->isEnabled())
                    continue;
                auto* button = qobject_cast<QPushButton*>(widget);
                for (int look = 0; look < (button ? 3 : 1); ++look) {
                    if (look == 1) {
                        QTest::mouseMove(button, QPoint(2, 2));
                        QTest::mouseMove(button);
                    } else if (look == 2) {
                        button->setDown(true);
                    }
                    const Ink ink = inkOf(widget, property, true);
                    measured += ink.pixels.isEmpty() ? 0 : 1;
                    if (contrastOf(ink) < requiredContrast(*widget))
                        weak << QStringLiteral("%1 %2 %3: %4")
                                    .arg(state.baseName(), widget->objectName())
                                    .arg(look)
                                    .arg(contrastOf(ink));
                }
                if (button)
                    button->setDown(false);
            }
        });
        QVERIFY2(weak.isEmpty(), qPrintable(weak.join(QLatin1String(", "))));
        QVERIFY(measured > 3);
    }

    void textsFit()
    {
        QStringList failures;
        play([&](QWidget& top, const QFileInfo& state) {
            const auto fail = [&](const char* what, const QWidget* widget, const QString& other) {
                failures << QStringLiteral("%1: %2 %3 %4")
                                .arg(state.baseName(), widget->objectName(), QLatin1String(what), other);
            };
            QMap<QWidget*, QRect> areas;
            const QList<QWidget*> widgets = top.findChildren<QWidget*>();
            for (QWidget* widget : widgets) {
                const char* property = textProperty(widget);
                auto* comboBox = qobject_cast<QComboBox*>(widget);
                if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QTextEdit*>(widget))
                    property = "placeholderText";
                if (comboBox)
                    property = "currentIndex";
                const bool isPlaced = widget->isVisible() || !widget->parentWidget()->layout();
                // The tool tip has what does not fit.
                if (!property || !isPlaced || !widget->toolTip().isEmpty())
                    continue;
                for (int i = 0; i < (comboBox ? comboBox->count() : 1); ++i) {
                    if (comboBox)
                        comboBox->setCurrentIndex(i);
                    if (isCut(widget, property))
                        fail("is cut in", widget, QString::number(i));
                }
                if (!widget->isVisible())
                    continue;
                // Of a label and a title what is painted, of a control all but its frame.
                const bool isPassive = qobject_cast<QLabel*>(widget) || qobject_cast<QGroupBox*>(widget);
                const QRect area = (isPassive ? inkOf(widget, property).box : widget->rect().adjusted(4, 4, -4, -4))
                                       .translated(widget->mapTo(&top, QPoint()));
                for (QWidget* other : areas.keys()) {
                    if (area.intersects(areas.value(other)) && !widget->isAncestorOf(other)
                        && !other->isAncestorOf(widget))
                        fail("meets", widget, other->objectName());
                }
                areas.insert(widget, area);
            }
            QVERIFY(!areas.isEmpty());
            const auto* log = top.findChild<QAbstractItemView*>(QStringLiteral("logsListView"));
            for (int i = 0; log && i < log->model()->rowCount(); ++i) {
                QTextDocument row;
                row.setDefaultFont(log->font());
                row.setHtml(log->model()->index(i, 0).data().toString());
                if (log->isVisible() && row.idealWidth() > log->viewport()->width())
                    fail("has no room for", log, row.toPlainText());
            }
        });
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QLatin1Char('\n'))));
    }

    void menusAreTranslated()
    {
        int menus = 0;
        LastTranslator::asked.clear();
        for (const Family& family : dialogFamilies()) {
            IBaseDialog* dialog = get(family.name);
            dialog->show();
            for (QWidget* widget : window(dialog).findChildren<QWidget*>()) {
                widget->setEnabled(true);
                QTimer::singleShot(0, this, [&menus] {
                    if (QWidget* const menu = QApplication::activePopupWidget())
                        menus += menu->close() ? 1 : 0;
                });
                QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
                QCoreApplication::sendEvent(widget, &event);
                settle();
                settle();
                QVERIFY(!window(dialog).findChild<QMenu*>());
            }
        }
        QVERIFY(menus > 0);
        QCOMPARE(LastTranslator::asked, QStringList());
    }

    void timePasses()
    {
        QWidget& spinner = child(show<IProgressDialog>(), "messageIcon");
        const QImage first = spinner.grab().toImage();
        auto* prompt = get<IApproveRemoteConnectionDialog>();
        prompt->setCountdown(30);
        prompt->show();
        QTRY_VERIFY(spinner.grab().toImage() != first);
        auto& cancel = child<QPushButton>(prompt, "cancelButton");
        QTRY_COMPARE(cancel.text(), QStringLiteral("Cancel(29)"));
        // A screen reader presses the button like a mouse.
        QAccessible::queryAccessibleInterface(&cancel)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(events.size(), 1);
        QCOMPARE(takeEvents(), QStringList{QStringLiteral("evCancel")});
    }

    /// A run of its own has a scale factor of 2.
    void finePictures()
    {
        if (qApp->devicePixelRatio() < 2)
            QSKIP("needs a fine screen");
        play([&](QWidget& top, const QFileInfo& state) {
            const QList<QLabel*> labels = top.findChildren<QLabel*>();
            for (QLabel* label : labels) {
                const QImage picture = label->grab().toImage();
                // A coarse picture consists of blocks of two by two pixels.
                const QImage blocks = picture.scaled(picture.size() / 2).scaled(picture.size());
                QVERIFY2(!label->isVisible() || !label->pixmap() || picture != blocks,
                         qPrintable(state.baseName() + label->objectName()));
            }
        });
    }
};

GUI_TEST_MAIN(StatesTest)
#include "tst_states.moc"
