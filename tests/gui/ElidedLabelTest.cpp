// The label for texts of any length and any content.
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

class ElidedLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void sizeHintFitsTheText();
    void sizeHintWidthIsLimited();
    void sizeHintIsOneLineHigh_data();
    void sizeHintIsOneLineHigh();
    void minimumWidthIsZero();
    void keepsTheWholeText();
    void elidesLongText();
    void showsMarkupAsPlainText();
    void toolTipShowsTheWholeText();
    void noToolTipWhenTheTextFits();
    void drawingTimeIsIndependentOfTheLength();

private:
    void askForToolTip();

    ElidedLabel m_label;
};

void ElidedLabelTest::init()
{
    m_label.setText("");
    m_label.resize(200, 30);
    m_label.show();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void ElidedLabelTest::sizeHintFitsTheText()
{
    m_label.setText("RT-DRIVE 1.02");
    QVERIFY(m_label.sizeHint().width() >= m_label.fontMetrics().horizontalAdvance("RT-DRIVE 1.02"));
}

void ElidedLabelTest::sizeHintWidthIsLimited()
{
    m_label.setText(QString(100, 'W'));
    const int width = m_label.sizeHint().width();
    QVERIFY(width < m_label.fontMetrics().horizontalAdvance(QString(100, 'W')));
    m_label.setText(QString(100000, 'W'));
    QCOMPARE(m_label.sizeHint().width(), width);
}

void ElidedLabelTest::sizeHintIsOneLineHigh_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("line feed") << "1.0\n2.0";
    QTest::newRow("carriage return") << "1.0\r\n2.0";
    QTest::newRow("line separator") << QString("1.0") + QChar(QChar::LineSeparator) + "2.0";
    QTest::newRow("paragraph separator") << QString("1.0") + QChar(QChar::ParagraphSeparator) + "2.0";
    QTest::newRow("form feed") << "1.0\f2.0";
    QTest::newRow("only line feeds") << QString(1000, '\n');
}

void ElidedLabelTest::sizeHintIsOneLineHigh()
{
    QFETCH(QString, text);
    const int oneLine = m_label.sizeHint().height();
    m_label.setText(text);
    QCOMPARE(m_label.sizeHint().height(), oneLine);
    QCOMPARE(m_label.minimumSizeHint().height(), oneLine);
}

void ElidedLabelTest::minimumWidthIsZero()
{
    m_label.setText(QString(100, 'W'));
    QCOMPARE(m_label.minimumSizeHint().width(), 0);
}

void ElidedLabelTest::keepsTheWholeText()
{
    const QString text = QString(100000, 'x') + "\n<b>&amp;";
    m_label.setText(text);
    QCOMPARE(m_label.text(), text);
}

void ElidedLabelTest::elidesLongText()
{
    m_label.setText(QString(60, 'W'));
    const QImage image = m_label.grab().toImage();
    m_label.setText(QString(100000, 'W'));
    QCOMPARE(m_label.grab().toImage(), image);
    m_label.setText(QString(5, 'W'));
    QVERIFY(m_label.grab().toImage() != image);
}

void ElidedLabelTest::showsMarkupAsPlainText()
{
    QCOMPARE(m_label.textFormat(), Qt::PlainText);
    m_label.setText("<b>x</b>");
    const QImage image = m_label.grab().toImage();
    m_label.setText("x");
    QVERIFY(m_label.grab().toImage() != image);
}

void ElidedLabelTest::askForToolTip()
{
    const QPoint middle = m_label.rect().center();
    QHelpEvent question(QEvent::ToolTip, middle, m_label.mapToGlobal(middle));
    QCoreApplication::sendEvent(&m_label, &question);
}

void ElidedLabelTest::toolTipShowsTheWholeText()
{
    m_label.setText(QString(60, 'W') + "<b>");
    askForToolTip();
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>" + QString(60, 'W') + "&lt;b&gt;</span>");
}

void ElidedLabelTest::noToolTipWhenTheTextFits()
{
    m_label.setText("1.02");
    askForToolTip();
    QVERIFY(!QToolTip::isVisible());
}

void ElidedLabelTest::drawingTimeIsIndependentOfTheLength()
{
    m_label.setText(QString(10000, 'W'));
    QElapsedTimer timer;
    timer.start();
    m_label.grab();
    const qint64 some = timer.nsecsElapsed() + 1000000; // plus 1 ms: tolerates a short delay
    m_label.setText(QString(10000000, 'W'));
    timer.restart();
    m_label.grab();
    QVERIFY2(timer.nsecsElapsed() < 100 * some, "the drawing time depends on the length of the text");
}

QTEST_MAIN(ElidedLabelTest)
#include "ElidedLabelTest.moc"
