// The note below the name fields: when it is visible, its text, and the space that the windows reserve for
// it.
#include "AddPublisherFixture.h"
#include "PropertyService.h"

#include "ListedNameNote.h"

#include <QAccessible>

class ListedNameNoteTest : public AddPublisherFixture
{
    Q_OBJECT

private slots:
    void init();

    void registrationNotesTheName_data();
    void registrationNotesTheName();
    void registrationNoteMatchesTheList();
    void registrationGrowsForTheNote();
    void propertiesNoteTheName_data();
    void propertiesNoteTheName();
    void propertiesGrowForTheNote();
    void longNameDoesNotWidenTheWindow();

private:
    static void rows();
    /// The text of the note; "(hidden)" without one. Marked if the note is misplaced, or differs from the
    /// accessible description.
    static QString noteOf(const QDialog& dialog);
};

void ListedNameNoteTest::init()
{
    startAnew();
}

void ListedNameNoteTest::rows()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("note");
    const struct
    {
        const char *typed, *note;
    } table[] = {
        {"Studio A", "(hidden)"},
        {"Studio [A] = \"x\"", "(hidden)"},
        {"Büro 3", "It will be listed as \"Bro 3\"."},
        {"A;B", "It will be listed as \"A\"."},
        {" Studio ", "It will be listed as \"Studio\"."},
        {"Studio ", "It will be listed as \"Studio\"."},
        {"=x", "It will be listed as \"x\"."},
        {"<b>ü</b>", "It will be listed as \"<b></b>\"."},
        {"%1 ü %2", "It will be listed as \"%1  %2\"."},
        {"東京", "It will be listed without a name."},
        {";", "It will be listed without a name."},
        {"   ", "It will be listed without a name."},
    };
    for (const auto& row : table) {
        QTest::newRow(row.typed) << QString::fromUtf8(row.typed) << row.note;
    }
}

QString ListedNameNoteTest::noteOf(const QDialog& dialog)
{
    const auto note = dialog.findChild<ListedNameNote*>("labelListedName");
    auto field = dialog.findChild<QLineEdit*>("textPublisherName");
    const QString spoken = QAccessible::queryAccessibleInterface(field)->text(QAccessible::Description);
    if (!note->isVisible()) {
        return spoken.isEmpty() ? "(hidden)" : "(only spoken) " + spoken;
    }
    const bool below = note->mapTo(note->window(), QPoint()).y() >=
                       field->mapTo(note->window(), field->rect().bottomLeft()).y();
    return spoken == note->text() && below ? note->text() : "(out of place) " + note->text();
}

void ListedNameNoteTest::registrationNotesTheName_data()
{
    rows();
    QTest::newRow("empty") << ""
                           << "It will be listed as \"NotSet\".";
}

void ListedNameNoteTest::registrationNotesTheName()
{
    QFETCH(QString, typed);
    open();
    QCOMPARE(noteOf(*m_dialog), "(hidden)");
    enter(m_dialog->textPublisherName, typed);
    QCoreApplication::processEvents();
    QTEST(noteOf(*m_dialog), "note");
    enter(m_dialog->textPublisherName, "Studio");
    QCOMPARE(noteOf(*m_dialog), "(hidden)");
}

void ListedNameNoteTest::registrationNoteMatchesTheList()
{
    open();
    enter(server, QString::fromUtf8("Büro; 3"));
    QCOMPARE(noteOf(*m_dialog), "It will be listed as \"Bro\".");
    QCOMPARE(ok(), QString());
    QVERIFY(wasAdded());
    const PubSetup window(nullptr);
    QCOMPARE(window.treePublisherList->topLevelItemCount(), 1);
    QCOMPARE(window.treePublisherList->topLevelItem(0)->text(0), "Bro");
}

/// The window grows when the note appears for the first time, then keeps its size.
void ListedNameNoteTest::registrationGrowsForTheNote()
{
    open();
    const QSize before = m_dialog->size();
    const int fieldHeight = m_dialog->textPublisherName->height();
    enter(m_dialog->textPublisherName, QString::fromUtf8("ü x"));
    QCoreApplication::processEvents();
    const QSize grown = m_dialog->size();
    QCOMPARE(grown.width(), before.width());
    QVERIFY(grown.height() >= before.height() + m_dialog->labelListedName->sizeHint().height());
    QCOMPARE(m_dialog->minimumSize(), grown);
    QCOMPARE(m_dialog->maximumSize(), grown);
    QCOMPARE(m_dialog->textPublisherName->height(), fieldHeight);
    for (const char* name : {"x", "ü y"}) {
        enter(m_dialog->textPublisherName, QString::fromUtf8(name));
        QCoreApplication::processEvents();
        QCOMPARE(m_dialog->size(), grown);
    }
}

void ListedNameNoteTest::propertiesNoteTheName_data()
{
    rows();
    QTest::newRow("empty, which is rejected") << ""
                                              << "(hidden)";
}

void ListedNameNoteTest::propertiesNoteTheName()
{
    QFETCH(QString, typed);
    PropertyStage stage;
    stage.storeAndOpen(rt300xl);
    QCOMPARE(noteOf(*stage.dialog()), "(hidden)");
    enter(stage->textPublisherName, typed);
    QCoreApplication::processEvents();
    QTEST(noteOf(*stage.dialog()), "note");
    enter(stage->textPublisherName, "Studio");
    QCOMPARE(noteOf(*stage.dialog()), "(hidden)");
    enter(stage->textPublisherName, "x ");
    enter(stage->textPublisherName, "");
    QCOMPARE(noteOf(*stage.dialog()), "(hidden)");
}

void ListedNameNoteTest::propertiesGrowForTheNote()
{
    PropertyStage stage;
    stage.storeAndOpen(rt300xl);
    const QSize before = stage->size();
    const QSize group = stage->groupStacker->size();
    enter(stage->textPublisherName, QString::fromUtf8("ü x"));
    QCoreApplication::processEvents();
    const QSize grown = stage->size();
    QCOMPARE(grown.width(), before.width());
    QVERIFY(grown.height() >= before.height() + stage->labelListedName->sizeHint().height());
    QCOMPARE(stage->groupStacker->size(), group);
    for (const char* name : {"x", "ü y"}) {
        enter(stage->textPublisherName, QString::fromUtf8(name));
        QCoreApplication::processEvents();
        QCOMPARE(stage->size(), grown);
    }
}

void ListedNameNoteTest::longNameDoesNotWidenTheWindow()
{
    open();
    const int width = m_dialog->width();
    enter(m_dialog->textPublisherName, QString::fromUtf8("ü").repeated(100) + QString(300, 'x'));
    QCoreApplication::processEvents();
    QCOMPARE(noteOf(*m_dialog), "It will be listed as \"" + QString(255, 'x') + "\".");
    QCOMPARE(m_dialog->width(), width);
}

QTEST_MAIN(ListedNameNoteTest)
#include "ListedNameNoteTest.moc"
