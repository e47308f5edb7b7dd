// Tests the pictures of the dialogs: each exists at its size and at twice its size, and no two look alike.
#include <QImage>
#include <QTest>
#include <algorithm>

namespace {

struct Picture
{
    const char* name; // path below :/res, without extension
    QSize size;
};

const Picture pictures[] = {
    {"A11-1", {87, 87}},
    {"A11-2", {87, 87}},
    {"A11-3", {87, 87}},
    {"A11-5", {87, 87}},
    {"A11-6", {87, 87}},
    {"A11-7", {87, 87}},
    {"A11-9", {87, 87}},
    {"PrinterMaint/H2-01", {200, 120}},
    {"PrinterMaint/H2-02", {200, 120}},
    {"PrinterMaint/btnHeadCleaning", {64, 64}},
    {"PrinterMaint/btnNozzleCheck", {64, 64}},
};

QString pathOf(const QString& name, const QString& ending)
{
    return QStringLiteral(":/res/") + name + ending;
}

QImage load(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

int differentPixels(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) != other.pixel(x, y);
        }
    }
    return count;
}

/// Counts the opaque pixels (alpha above 200) that differ from the background by more than a fifth of the
/// range in at least one colour channel.
int standingOut(const QImage& picture, QColor background)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const int furthest = std::max({std::abs(pixel.red() - background.red()),
                                           std::abs(pixel.green() - background.green()),
                                           std::abs(pixel.blue() - background.blue())});
            count += pixel.alpha() > 200 && furthest > 51;
        }
    }
    return count;
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void existAtBothSizes_data();
    void existAtBothSizes();
    void visibleOnLightAndDark_data();
    void visibleOnLightAndDark();
    void differFromEachOther();
    void sequencesAreOpaque();
    void badPatternDiffersOnlyByMissingLines();
};

void PicturesTest::existAtBothSizes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    for (const Picture& picture : pictures) {
        QTest::newRow(picture.name) << QString(picture.name) << picture.size;
    }
}

void PicturesTest::existAtBothSizes()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QCOMPARE(load(pathOf(name, ".png")).size(), size);
    QCOMPARE(load(pathOf(name, "@2x.png")).size(), 2 * size);
}

void PicturesTest::visibleOnLightAndDark_data()
{
    existAtBothSizes_data();
}

void PicturesTest::visibleOnLightAndDark()
{
    QFETCH(QString, name);
    for (const char* ending : {".png", "@2x.png"}) {
        const QImage picture = load(pathOf(name, ending));
        const int pixels = picture.width() * picture.height();
        for (const QColor& background : {QColor(255, 255, 255), QColor(43, 43, 43)}) {
            const int seen = standingOut(picture, background);
            QVERIFY2(seen * 100 > pixels * 8, qPrintable(QString("%1 of %2").arg(seen).arg(pixels)));
        }
    }
}

void PicturesTest::differFromEachOther()
{
    for (const char* ending : {".png", "@2x.png"}) {
        for (const Picture& one : pictures) {
            for (const Picture& other : pictures) {
                if (&one == &other || one.size != other.size) {
                    continue;
                }
                const QImage first = load(pathOf(one.name, ending));
                const QImage second = load(pathOf(other.name, ending));
                QCOMPARE(first.size(), second.size());
                const int different = differentPixels(first, second);
                QVERIFY2(different * 100 > first.width() * first.height(),
                         qPrintable(QString("%1 and %2: %3").arg(one.name, other.name).arg(different)));
            }
        }
    }
}

// The dialog puts each picture of a disc sequence on top of the previous one.
void PicturesTest::sequencesAreOpaque()
{
    int sequences = 0;
    for (const Picture& picture : pictures) {
        if (!QString(picture.name).startsWith("A11-")) {
            continue;
        }
        ++sequences;
        for (const char* ending : {".png", "@2x.png"}) {
            const QImage image = load(pathOf(picture.name, ending));
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    QVERIFY2(qAlpha(image.pixel(x, y)) == 255,
                             qPrintable(QString("%1 at %2, %3").arg(picture.name).arg(x).arg(y)));
                }
            }
        }
    }
    QCOMPARE(sequences, 7);
}

void PicturesTest::badPatternDiffersOnlyByMissingLines()
{
    const QImage bad = load(":/res/PrinterMaint/H2-01.png");
    const QImage good = load(":/res/PrinterMaint/H2-02.png");
    QCOMPARE(bad.size(), good.size());
    int missing = 0;
    for (int y = 0; y < good.height(); ++y) {
        for (int x = 0; x < good.width(); ++x) {
            if (bad.pixel(x, y) != good.pixel(x, y)) {
                QCOMPARE(bad.pixelColor(x, y), QColor(Qt::white));
                ++missing;
            }
        }
    }
    QCOMPARE(missing, 16 * 6 * 3); // 16 lines of 6 by 3 pixels are missing
}

QTEST_MAIN(PicturesTest)
#include "PicturesTest.moc"
