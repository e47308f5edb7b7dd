// Tests that truncated cells of the publisher list show their whole text in a tooltip.
#include "Installation.h"
#include "PubSetup.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

class WholeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void truncatedTextHasTip();
    void fittingTextHasNoTip();
    void widenedColumnHasNoTip();
    void narrowedColumnHasTip();
    void iconReducesSpaceForName();
    void tipIsPlainText();
    void longTipIsTruncated();
    void noTipBelowTheRows();

private:
    /// Rests the mouse on a cell of the only row, or below the rows if `column` is -1.
    void restOn(int column);
    void setText(int column, const QString& text);
    int neededWidth(int column) const;

    Installation m_installation;
    std::unique_ptr<PubSetup> m_window;
};

void WholeTextTest::init()
{
    m_installation = Installation();
    m_installation.addLocal("A", "A");
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void WholeTextTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    m_window.reset();
}

void WholeTextTest::setText(int column, const QString& text)
{
    m_window->treePublisherList->topLevelItem(0)->setText(column, text);
}

int WholeTextTest::neededWidth(int column) const
{
    QTreeWidget* tree = m_window->treePublisherList;
    return tree->fontMetrics().horizontalAdvance(tree->topLevelItem(0)->text(column));
}

void WholeTextTest::restOn(int column)
{
    QTreeWidget* tree = m_window->treePublisherList;
    const QModelIndex cell = tree->model()->index(0, std::max(column, 0));
    const QPoint place =
        column < 0 ? QPoint(20, tree->viewport()->height() - 2) : tree->visualRect(cell).center();
    QHelpEvent question(QEvent::ToolTip, place, tree->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(tree->viewport(), &question);
}

void WholeTextTest::truncatedTextHasTip()
{
    setText(3, "Administrator not registered");
    QVERIFY2(neededWidth(3) > 120, "the column is too narrow");
    restOn(3);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>Administrator not registered</span>");
}

void WholeTextTest::fittingTextHasNoTip()
{
    setText(3, "Ready");
    restOn(3);
    QVERIFY(!QToolTip::isVisible());
}

void WholeTextTest::widenedColumnHasNoTip()
{
    setText(3, "Administrator not registered");
    m_window->treePublisherList->header()->resizeSection(3, neededWidth(3) + 20);
    restOn(3);
    QVERIFY(!QToolTip::isVisible());
}

void WholeTextTest::narrowedColumnHasTip()
{
    setText(4, "12345");
    restOn(4);
    QVERIFY(!QToolTip::isVisible());
    m_window->treePublisherList->header()->resizeSection(4, neededWidth(4) - 1);
    restOn(4);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>12345</span>");
}

void WholeTextTest::iconReducesSpaceForName()
{
    setText(0, "Room on the third floor");
    m_window->treePublisherList->header()->resizeSection(0, neededWidth(0) + 15); // the icon needs 22
    restOn(0);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>Room on the third floor</span>");
}

void WholeTextTest::tipIsPlainText()
{
    setText(0, "<b>Studio</b> & a rather long name of it");
    restOn(0);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>&lt;b&gt;Studio&lt;/b&gt; &amp; a rather long name of it</span>");
}

void WholeTextTest::longTipIsTruncated()
{
    setText(2, QString(100000, 'x'));
    restOn(2);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), "<span>" + QString(1000, 'x') + "</span>");
}

void WholeTextTest::noTipBelowTheRows()
{
    setText(0, QString(100, 'x'));
    restOn(-1);
    QVERIFY(!QToolTip::isVisible());
}

QTEST_MAIN(WholeTextTest)
#include "WholeTextTest.moc"
