#include "GuiTest.h"
#include "ScriptPlayer.h"

#include <QDir>
#include <QPainter>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>

/// Renders every dialog in its gallery states and compares each with the stored picture.
///
/// Both are compared by the mean colours of small tiles: glyphs that another version of the font library draws a little
/// differently hardly change a tile, a widget that moved, vanished or is covered changes many.
class PicturesTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void gallery_data();
    void gallery();
    void everyReferenceIsRendered();
    void movedWidgetIsNoticed();

private:
    QSet<QString> rendered;
};

namespace {
constexpr int tileSide = 8;
constexpr int tolerance = 28; // of 255, in any channel of a tile's mean

/// The directory for the screen's resolution. That for 96 dpi has all states, those for finer screens some.
QDir references()
{
    const int dpi = qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
    return QStringLiteral(REFERENCE_PICTURES) + (dpi == 96 ? QString() : QStringLiteral("/%1dpi").arg(dpi));
}

const QStringList pngFiles(QStringLiteral("*.png"));

QImage tiles(const QImage& picture)
{
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaled(qMax(1, picture.width() / tileSide), qMax(1, picture.height() / tileSide), Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation);
}

bool differ(QRgb first, QRgb second)
{
    const auto distant = [](int a, int b) { return qAbs(a - b) > tolerance; };
    return distant(qRed(first), qRed(second)) || distant(qGreen(first), qGreen(second))
        || distant(qBlue(first), qBlue(second)) || distant(qAlpha(first), qAlpha(second));
}

/// The tiles in which the pictures differ, marked on a copy of the first; null when there are none.
QImage difference(const QImage& picture, const QImage& reference)
{
    if (picture.size() != reference.size())
        return picture;
    const QImage actual = tiles(picture);
    const QImage expected = tiles(reference);
    QImage marked = picture.convertToFormat(QImage::Format_ARGB32);
    QPainter painter(&marked);
    bool isDifferent = false;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (differ(actual.pixel(x, y), expected.pixel(x, y))) {
                painter.fillRect(x * tileSide, y * tileSide, tileSide, tileSide, Qt::magenta);
                isDifferent = true;
            }
        }
    }
    painter.end();
    return isDifferent ? marked : QImage();
}
} // namespace

void PicturesTest::gallery_data()
{
    familyRows();
}

void PicturesTest::gallery()
{
    QFETCH(QString, family);
    const QTemporaryDir directory;
    const QDir pictures(directory.path());
    const qreal ratio = QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96;
    gui().setRatio(static_cast<float>(ratio));
    ScriptPlayer player(gui(), ScriptPlayer::Mode::Unattended, pictures);
    QSignalSpy finished(&player, &ScriptPlayer::finished);
    QFile file(QStringLiteral(GALLERY "/%1.jsonl").arg(family));
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd())
        player.addLine(file.readLine());
    player.endInput();
    QVERIFY(finished.wait(30000));
    QCOMPARE(player.errorCount(), 0);

    QStringList changed;
    for (const QString& name : pictures.entryList(pngFiles)) {
        if (ratio > 1 && !references().exists(name))
            continue;
        rendered << name;
        const QImage picture(pictures.filePath(name));
        if (qEnvironmentVariableIsSet("GUI_RENEW_PICTURES")) {
            QVERIFY(picture.save(references().filePath(name)));
            continue;
        }
        const QImage marked = difference(picture, QImage(references().filePath(name)));
        if (marked.isNull())
            continue;
        changed << QDir::current().filePath(QStringLiteral("difference-") + name);
        QVERIFY(marked.save(changed.last()));
    }
    QVERIFY2(changed.isEmpty(), qPrintable(QStringLiteral("look at ") + changed.join(QLatin1String(", "))));
}

void PicturesTest::everyReferenceIsRendered()
{
    for (const QString& name : references().entryList(pngFiles))
        QVERIFY2(rendered.contains(name), qPrintable(QStringLiteral("no state is named ") + name));
}

void PicturesTest::movedWidgetIsNoticed()
{
    auto* dialog = get<IErrorMessageDialog>();
    const auto render = [dialog] { return window(dialog).grab().toImage(); };
    const QImage before = render();
    QVERIFY(difference(render(), before).isNull());

    QWidget& cancel = child(dialog, "btnCancel");
    cancel.move(cancel.pos() - QPoint(6, 0));
    const QImage marked = difference(render(), before);
    QVERIFY(marked != render() && marked.size() == before.size());
    QVERIFY(marked.pixelColor(cancel.geometry().topLeft() + QPoint(2, 8)) == Qt::magenta);
    cancel.hide();
    QVERIFY(!difference(render(), before).isNull());
}

GUI_TEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
