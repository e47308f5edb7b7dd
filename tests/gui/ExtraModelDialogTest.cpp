// The windows need only a row in the table of models to support a new model.
#include "ExtraModel.h"
#include "PropertyService.h"

#include <QPushButton>
#include <QTreeWidget>

class ExtraModelDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void isListedByItsName();
    void propertiesFollowItsRow();
    void savesItsSettings();

private:
    PropertyStage m_stage;
};

void ExtraModelDialogTest::cleanup()
{
    m_stage.close();
}

void ExtraModelDialogTest::isListedByItsName()
{
    m_stage.store(EXTRA_MODEL);
    PubSetup window(nullptr);
    window.show();
    window.updateList();
    QCOMPARE(window.treePublisherList->topLevelItemCount(), 1);
    QCOMPARE(window.treePublisherList->topLevelItem(0)->text(1), "RT-31 (BD-XL)");
}

void ExtraModelDialogTest::propertiesFollowItsRow()
{
    m_stage.storeAndOpen(EXTRA_MODEL, {.mode = 1});
    QCOMPARE(m_stage->windowTitle(), "Properties - Studio(RT-31 (BD-XL))");
    QCOMPARE(items(m_stage->selectPublishMode),
             (QStringList{"Standard mode=0", "External Output / Low-volume mode=2"}));
    QCOMPARE(items(m_stage->selectStacker1).mid(5), (QStringList{"BD-R XL 100=10", "BD-R XL 128=11"}));
    QVERIFY(!seenOn(m_stage->pageGeneral, m_stage->selectUseDrive));
    QCOMPARE(m_stage->labelDrive1VersionLabel->text(), "Drive:");
    QCOMPARE(stackers(m_stage.dialog()), "mode 0, stackers 1 0-+out 32H-, A11-7");
}

void ExtraModelDialogTest::savesItsSettings()
{
    m_stage.store(EXTRA_MODEL, {.useDrive = 1});
    PropertyService service("RT-30II BDXL"); // registers the device as one of the simulator's models
    m_stage.installation().setDevice("{X}", EXTRA_MODEL, true);
    m_stage.open();
    QCOMPARE(m_stage->windowTitle(), "Properties - Studio(RT-31 (BD-XL))");
    choose(m_stage->selectPublishMode, 2);
    choose(m_stage->selectStacker2, 10);
    m_stage->spinRetryCount->setValue(5);
    QTest::mouseClick(m_stage->okButton, Qt::LeftButton);
    QVERIFY(!m_stage->isVisible());
    QCOMPARE(settings({"PublishMode", "Stacker1", "Stacker2", "Stacker3", "Stacker4"}),
             "PublishMode=2 Stacker1=1 Stacker2=10 Stacker3=0 Stacker4=32");
    QCOMPARE(settings({"UseDrive", "RetryTimes", "RetryTimesW", "RetryTimesR"}),
             "UseDrive=1 RetryTimes=5 RetryTimesW=5 RetryTimesR=3");
}

QTEST_MAIN(ExtraModelDialogTest)
#include "ExtraModelDialogTest.moc"
