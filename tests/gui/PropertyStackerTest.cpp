// Tests the rules between publish mode, stackers and picture through user input in the dialog.
#include "PropertyFixture.h"

#include <QPushButton>

class PropertyStackerTest : public QObject
{
    Q_OBJECT

private slots:
    void oneChange_data();
    void oneChange();
    void stacker2TriggersNoRules_data();
    void stacker2TriggersNoRules();
    void stacker2FollowsInBatchMode();
    void outputItemReturnsAtTheEnd();
    void modeSequences_data();
    void modeSequences();
    void chosenMediumOfStacker2IsKept();
    void picturesOfOneChange_data();
    void picturesOfOneChange();
    void nothingHappensWithoutMode();
    void directSlotCalls();
    void keyboardStepsThroughTheModes();

private:
    PropertyStage m_stage;
};

void PropertyStackerTest::oneChange_data()
{
    QTest::addColumn<bool>("oneDrive");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QString>("box");
    QTest::addColumn<uint>("value");
    QTest::addColumn<QString>("after");
    const auto row = [](bool oneDrive, uint mode, uint stacker3, const char* box, uint value,
                        const char* after) {
        QTest::addRow("%s, mode %u, stacker 3 %u: %s = %u", oneDrive ? "RT-30" : "RT-300", mode, stacker3,
                      box, value)
            << oneDrive << mode << stacker3 << QString(box) << value << QString(after);
    };
    constexpr bool big = false;
    constexpr bool small = true;
    // Stacker 1 holds 7; stacker 2 holds 8 if it holds discs in this mode.
    row(big, 0, 32, "selectPublishMode", 2, "mode 2, stackers 7 1 32, A11-2");
    row(big, 0, 32, "selectPublishMode", 1, "mode 1, stackers 7 7-+out 0-, A11-3");
    row(big, 0, 32, "selectStacker1", 9, "mode 0, stackers 9 0-+out 32, A11-1");
    row(big, 0, 32, "selectStacker3", 0, "mode 0, stackers 7 0-+out 0, A11-9");
    row(big, 0, 0, "selectPublishMode", 2, "mode 2, stackers 7 1 32, A11-2");
    row(big, 0, 0, "selectPublishMode", 1, "mode 1, stackers 7 7-+out 0-, A11-3");
    row(big, 0, 0, "selectStacker1", 9, "mode 0, stackers 9 0-+out 0, A11-9");
    row(big, 0, 0, "selectStacker3", 32, "mode 0, stackers 7 0-+out 32, A11-1");

    row(big, 1, 0, "selectPublishMode", 0, "mode 0, stackers 7 0-+out 0, A11-9");
    row(big, 1, 0, "selectPublishMode", 2, "mode 2, stackers 7 7 32, A11-2");
    row(big, 1, 0, "selectStacker1", 9, "mode 1, stackers 9 9-+out 0-, A11-3");
    row(big, 1, 0, "selectStacker1", 1, "mode 1, stackers 1 1-+out 0-, A11-3");

    row(big, 2, 32, "selectPublishMode", 0, "mode 0, stackers 7 0-+out 32, A11-1");
    row(big, 2, 32, "selectPublishMode", 1, "mode 1, stackers 7 7- 0-, A11-3");
    row(big, 2, 32, "selectStacker1", 9, "mode 2, stackers 9 8 32, A11-2");
    row(big, 2, 32, "selectStacker2", 9, "mode 2, stackers 7 9 32, A11-2");
    row(big, 2, 32, "selectStacker3", 0, "mode 2, stackers 7 8 0, A11-5");
    row(big, 2, 0, "selectPublishMode", 0, "mode 0, stackers 7 0-+out 0, A11-9");
    row(big, 2, 0, "selectPublishMode", 1, "mode 1, stackers 7 7- 0-, A11-3");
    row(big, 2, 0, "selectStacker1", 9, "mode 2, stackers 9 8 32, A11-2"); // back to "Do not use"
    row(big, 2, 0, "selectStacker2", 9, "mode 2, stackers 7 9 0, A11-5");
    row(big, 2, 0, "selectStacker3", 32, "mode 2, stackers 7 8 32, A11-2");

    row(small, 0, 32, "selectPublishMode", 2, "mode 2, stackers 7 1 32H, A11-6");
    row(small, 0, 32, "selectStacker1", 9, "mode 0, stackers 9 0-+out 32H-, A11-7");
    row(small, 2, 32, "selectPublishMode", 0, "mode 0, stackers 7 0-+out 32H-, A11-7");
    row(small, 2, 32, "selectStacker1", 9, "mode 2, stackers 9 8 32H, A11-6");
    row(small, 2, 32, "selectStacker2", 9, "mode 2, stackers 7 9 32H, A11-6");
}

void PropertyStackerTest::oneChange()
{
    QFETCH(bool, oneDrive);
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(QString, box);
    QFETCH(uint, value);
    QFETCH(QString, after);
    for (const LocalModel& model : localModels) {
        if (model.oneDrive != oneDrive) {
            continue;
        }
        m_stage.storeAndOpen(model.dpType,
                             {.mode = mode, .stacker1 = 7, .stacker2 = 8, .stacker3 = stacker3});
        choose(m_stage->findChild<QComboBox*>(box), value);
        QCOMPARE(stackers(m_stage.dialog()), after);
        QVERIFY(m_stage->applyButton->isEnabled());
    }
}

void PropertyStackerTest::stacker2TriggersNoRules_data()
{
    QTest::addColumn<uint32_t>("dpType");
    QTest::newRow("RT-300") << rt300;
    QTest::newRow("RT-30") << rt30;
}

/// Choosing a medium for stacker 2 only marks the dialog as changed.
void PropertyStackerTest::stacker2TriggersNoRules()
{
    QFETCH(uint32_t, dpType);
    m_stage.storeAndOpen(dpType, {.mode = 2, .stacker1 = 7, .stacker2 = 8, .stacker3 = 0});
    const int pictures = pictureCount(m_stage->viewStackerSequence);
    choose(m_stage->selectStacker2, 6);
    QCOMPARE(pictureCount(m_stage->viewStackerSequence), pictures);
    QVERIFY(m_stage->applyButton->isEnabled());
}

void PropertyStackerTest::stacker2FollowsInBatchMode()
{
    m_stage.storeAndOpen(rt300xl, {.mode = 0, .stacker1 = 1});
    choose(m_stage->selectPublishMode, 1);
    for (const uint medium : {6U, 11U, 8U, 10U, 7U, 9U, 1U}) {
        choose(m_stage->selectStacker1, medium);
        QCOMPARE(chosen(m_stage->selectStacker2), QString::number(medium));
        QCOMPARE(m_stage->selectStacker2->currentText(), m_stage->selectStacker1->currentText());
        QVERIFY(!m_stage->selectStacker2->isEnabled());
    }
}

void PropertyStackerTest::outputItemReturnsAtTheEnd()
{
    for (const LocalModel& model : localModels) {
        m_stage.storeAndOpen(model.dpType);
        const QStringList before = items(m_stage->selectStacker2);
        QCOMPARE(before.last(), "Output Stacker=0");
        choose(m_stage->selectPublishMode, 2);
        QCOMPARE(items(m_stage->selectStacker2), before.mid(0, before.size() - 1));
        choose(m_stage->selectPublishMode, 0);
        QCOMPARE(items(m_stage->selectStacker2), before);
        QCOMPARE(m_stage->selectStacker2->currentText(), "Output Stacker");
        QVERIFY(!m_stage->selectStacker2->isEnabled());
        choose(m_stage->selectPublishMode, 2);
        QCOMPARE(stackers(m_stage.dialog()),
                 model.oneDrive ? "mode 2, stackers 1 1 32H, A11-6" : "mode 2, stackers 1 1 32, A11-2");
    }
}

void PropertyStackerTest::modeSequences_data()
{
    QTest::addColumn<QVector<uint>>("modes");
    QTest::addColumn<QString>("after");
    const auto row = [](const QVector<uint>& modes, const char* after) {
        QStringList names;
        for (const uint mode : modes) {
            names << QString::number(mode);
        }
        QTest::newRow(qPrintable(names.join("-"))) << modes << QString(after);
    };
    // Each row starts in Standard mode with stacker 3 in use and BD-R in stacker 1.
    row({1, 0}, "mode 0, stackers 8 0-+out 0, A11-9");
    row({2, 0}, "mode 0, stackers 8 0-+out 32, A11-1");
    row({2, 1}, "mode 1, stackers 8 8- 0-, A11-3");
    row({2, 1, 0}, "mode 0, stackers 8 0-+out 0, A11-9");
    row({2, 1, 2}, "mode 2, stackers 8 8 32, A11-2");
    row({1, 2}, "mode 2, stackers 8 8 32, A11-2");
    row({1, 2, 0}, "mode 0, stackers 8 0-+out 32, A11-1");
    row({1, 2, 1}, "mode 1, stackers 8 8- 0-, A11-3");
    row({1, 0, 2}, "mode 2, stackers 8 1 32, A11-2");
    row({2, 0, 1, 0, 2, 1, 2}, "mode 2, stackers 8 8 32, A11-2");
}

void PropertyStackerTest::modeSequences()
{
    QFETCH(QVector<uint>, modes);
    QFETCH(QString, after);
    m_stage.storeAndOpen(rt300, {.mode = 0, .stacker1 = 8, .stacker3 = 0});
    for (const uint mode : modes) {
        choose(m_stage->selectPublishMode, mode);
    }
    QCOMPARE(stackers(m_stage.dialog()), after);
}

void PropertyStackerTest::chosenMediumOfStacker2IsKept()
{
    m_stage.storeAndOpen(rt300, {.mode = 2, .stacker1 = 7, .stacker2 = 8, .stacker3 = 32});
    choose(m_stage->selectStacker3, 0);
    choose(m_stage->selectStacker2, 6);
    choose(m_stage->selectStacker1, 9);
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 9 6 32, A11-2");
    choose(m_stage->selectStacker3, 0);
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 9 6 0, A11-5");
}

void PropertyStackerTest::picturesOfOneChange_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<uint>("stacker3");
    QTest::addColumn<QString>("box");
    QTest::addColumn<uint>("value");
    QTest::addColumn<int>("added");
    const auto row = [](uint mode, uint stacker3, const char* box, uint value, int added) {
        QTest::addRow("mode %u, stacker 3 %u: %s = %u", mode, stacker3, box, value)
            << mode << stacker3 << QString(box) << value << added;
    };
    // One picture for the change itself, and another if it changes stacker 3, which runs the rules again.
    row(0, 32, "selectPublishMode", 2, 1);
    row(0, 0, "selectPublishMode", 2, 2);
    row(0, 32, "selectPublishMode", 1, 2);
    row(0, 0, "selectPublishMode", 1, 1);
    row(1, 0, "selectPublishMode", 0, 1);
    row(1, 0, "selectPublishMode", 2, 2);
    row(1, 0, "selectStacker1", 9, 1);
    row(2, 32, "selectPublishMode", 1, 2);
    row(2, 0, "selectPublishMode", 1, 1);
    row(2, 32, "selectStacker1", 9, 1);
    row(2, 0, "selectStacker1", 9, 2);
    row(2, 32, "selectStacker3", 0, 1);
    row(0, 32, "selectStacker3", 0, 1);
}

void PropertyStackerTest::picturesOfOneChange()
{
    QFETCH(uint, mode);
    QFETCH(uint, stacker3);
    QFETCH(QString, box);
    QFETCH(uint, value);
    QFETCH(int, added);
    m_stage.storeAndOpen(rt300, {.mode = mode, .stacker1 = 7, .stacker2 = 8, .stacker3 = stacker3});
    const int before = pictureCount(m_stage->viewStackerSequence);
    choose(m_stage->findChild<QComboBox*>(box), value);
    QCOMPARE(pictureCount(m_stage->viewStackerSequence), before + added);
}

/// A publisher with unknown settings stays unchanged until a mode is chosen.
void PropertyStackerTest::nothingHappensWithoutMode()
{
    m_stage.storeAndOpen(rt300, {.mode = unknownNumber});
    for (const int caller :
         {propertyDialogEx::STACKER_1_2, propertyDialogEx::STACKER_3, propertyDialogEx::PUB_MODE}) {
        m_stage->changeStacker(caller);
    }
    QVERIFY(!m_stage->applyButton->isEnabled());
    QCOMPARE(pictureCount(m_stage->viewStackerSequence), 0);
    choose(m_stage->selectStacker1, 8);
    QVERIFY(!m_stage->applyButton->isEnabled());

    choose(m_stage->selectPublishMode, 0);
    QVERIFY(m_stage->applyButton->isEnabled());
    QCOMPARE(chosen(m_stage->selectStacker1), "8");
    QCOMPARE(chosen(m_stage->selectStacker2), "0");
    QVERIFY(!m_stage->selectStacker2->isEnabled());
    QCOMPARE(picture(m_stage->viewStackerSequence), "A11-1");
}

void PropertyStackerTest::directSlotCalls()
{
    m_stage.storeAndOpen(rt300, {.mode = 2, .stacker1 = 7, .stacker2 = 8, .stacker3 = 0});
    m_stage->changeStacker(propertyDialogEx::STACKER_3);
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 7 8 0, A11-5");
    m_stage->changeStacker3();
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 7 8 0, A11-5");
    m_stage->changeStackerPub();
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 7 8 32, A11-2");
    choose(m_stage->selectStacker3, 0);
    m_stage->changeStacker();
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 7 8 32, A11-2");
    QVERIFY(m_stage->applyButton->isEnabled());
}

/// The arrow keys also select the modes in between.
void PropertyStackerTest::keyboardStepsThroughTheModes()
{
    m_stage.storeAndOpen(rt300, {.mode = 0, .stacker1 = 6, .stacker3 = 0});
    m_stage->selectPublishMode->setFocus();
    QTest::keyClick(m_stage->selectPublishMode, Qt::Key_Down);
    QCOMPARE(stackers(m_stage.dialog()), "mode 2, stackers 6 1 32, A11-2");
    QTest::keyClick(m_stage->selectPublishMode, Qt::Key_Down);
    QCOMPARE(stackers(m_stage.dialog()), "mode 1, stackers 6 6- 0-, A11-3");
    QTest::keyClick(m_stage->selectPublishMode, Qt::Key_Down);
    QCOMPARE(stackers(m_stage.dialog()), "mode 1, stackers 6 6- 0-, A11-3");
    QTest::keyClick(m_stage->selectPublishMode, Qt::Key_Up);
    QTest::keyClick(m_stage->selectPublishMode, Qt::Key_Up);
    QCOMPARE(stackers(m_stage.dialog()), "mode 0, stackers 6 0-+out 32, A11-1");
}

QTEST_MAIN(PropertyStackerTest)
#include "PropertyStackerTest.moc"
