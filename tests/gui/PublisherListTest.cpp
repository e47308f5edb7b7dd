// Tests the rows of the publisher list: which publishers have a row, its texts, the order, and what a refresh
// preserves.
#include "Boxes.h"
#include "Installation.h"
#include "LogAgent.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "SameImage.h"
#include "Win_def_log.h"

#include <QScrollBar>
#include <QTest>

#include <csignal>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int rightCentre = 0x0082; // Qt::AlignRight and Qt::AlignVCenter

} // namespace

class PublisherListTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void missingFolderIsAnEmptyList();
    void newRowShowsStoredValues();
    void modelTexts_data();
    void modelTexts();
    void networkPublisherRow();
    void namesSortNaturally();
    void otherColumnsSortAsText();
    void rowFollowsItsFile();
    void rowDisappearsWhileMessageBoxIsOpen();
    void nameIsNotRefreshed();
    void missingFileIsLogged();
    void rowStaysWhenPublisherMovesToNetwork();
    void selectionAndScrollPositionSurvive();
    void selectionSurvivesAChangeOfOrder();
    void twoSelectedRowsLeaveRemoveEnabled();
    void findsRowByExactKey();
    void currentPublisherCanBeRead();
    void readingWithoutCurrentRowAborts();
    void unusualFileNames_data();
    void unusualFileNames();
    void entriesWithoutPublisher();
    void longNameIsTruncated();
    void corruptFilesAreTolerated();

private:
    QStringList names(int column = 0) const;
    QTreeWidgetItem* row(const QString& name) const;

    Installation m_installation;
    std::unique_ptr<PubSetup> m_window;
};

void PublisherListTest::init()
{
    m_installation = Installation();
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void PublisherListTest::cleanup()
{
    m_window.reset();
}

QStringList PublisherListTest::names(int column) const
{
    QStringList texts;
    for (int i = 0; i < m_window->treePublisherList->topLevelItemCount(); ++i) {
        texts << m_window->treePublisherList->topLevelItem(i)->text(column);
    }
    return texts;
}

QTreeWidgetItem* PublisherListTest::row(const QString& name) const
{
    return m_window->treePublisherList->findItems(name, Qt::MatchExactly, 0).value(0);
}

void PublisherListTest::missingFolderIsAnEmptyList()
{
    m_installation.addLocal("gone", "Gone");
    m_window->updateList();
    QCOMPARE(names(), QStringList{"Gone"});
    std::filesystem::remove_all(PUBLISHER_SETTING_DIR);
    m_window->updateList();
    QCOMPARE(names(), QStringList());
}

void PublisherListTest::newRowShowsStoredValues()
{
    m_installation.addLocal("new", "Studio A");
    m_window->updateList();
    QCOMPARE(names(), QStringList{"Studio A"});
    const QTreeWidgetItem* item = row("Studio A");
    const QStringList texts = {"Studio A", "RT-300III", "-", "Not connected", "-", "-", "-"};
    for (int column = 0; column < 7; ++column) {
        QCOMPARE(item->text(column), texts[column]);
        const bool number = column >= 4;
        QCOMPARE(item->textAlignment(column) == rightCentre, number);
    }
    QCOMPARE(item->data(0, Qt::UserRole).toString(), "new");
    QVERIFY(showsImage(item->icon(0), ":/res/A6-1.png", 22));
}

void PublisherListTest::modelTexts_data()
{
    QTest::addColumn<uint>("dpType");
    QTest::addColumn<QString>("text");
    QTest::newRow("300III DVD") << 0x10000009U << "RT-300III";
    QTest::newRow("300III BD") << 0x20000009U << "RT-300III";
    QTest::newRow("300III, family alone") << 9U << "RT-300III";
    QTest::newRow("300III BDXL") << 0x30000009U << "RT-300III (BD-XL)";
    QTest::newRow("30II") << 8U << "RT-30II";
    QTest::newRow("30II BDXL") << 0x30000008U << "RT-30II (BD-XL)";
    QTest::newRow("300II") << 0x20000007U << "N/A";
    QTest::newRow("AP") << 2U << "N/A";
    QTest::newRow("unknown") << 77U << "N/A";
}

void PublisherListTest::modelTexts()
{
    QFETCH(uint, dpType);
    QFETCH(QString, text);
    m_installation.addLocal("model" + std::to_string(dpType), "M", dpType);
    m_window->updateList();
    QVERIFY(row("M"));
    QCOMPARE(row("M")->text(1), text);
}

void PublisherListTest::networkPublisherRow()
{
    m_installation.addLocal("local", "Local");
    Installation::addNetwork("network", "Network", "192.0.2.1");
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"Local", "Network"}));
    const QTreeWidgetItem* network = row("Network");
    QCOMPARE(network->text(2), "192.0.2.1");
    QCOMPARE(network->text(3), "Not connected");
    QCOMPARE(network->text(4), "-");
}

void PublisherListTest::namesSortNaturally()
{
    for (const char* name : {"A010", "b", "A10", "B", "A9", "A"}) {
        m_installation.addLocal(std::string("sort-") + name, name);
    }
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"A", "A9", "A10", "A010", "B", "b"}));

    m_installation.addLocal("sort-late", "A9b"); // inserted in order
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"A", "A9", "A9b", "A10", "A010", "B", "b"}));

    m_window->treePublisherList->sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(names(), (QStringList{"b", "B", "A010", "A10", "A9b", "A9", "A"}));
}

void PublisherListTest::otherColumnsSortAsText()
{
    for (const char* name : {"A1", "A2", "A3"}) {
        m_installation.addLocal(std::string("column-") + name, name);
    }
    m_window->updateList();
    row("A1")->setText(4, "9");
    row("A2")->setText(4, "10");
    row("A3")->setText(4, "-");
    m_window->treePublisherList->sortByColumn(4, Qt::AscendingOrder);
    QCOMPARE(names(4), (QStringList{"-", "10", "9"}));
}

void PublisherListTest::rowFollowsItsFile()
{
    m_installation.addLocal("one", "One");
    m_installation.addLocal("two", "Two");
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"One", "Two"}));
    const QTreeWidgetItem* kept = row("Two");
    Installation::remove("one");
    m_window->updateList();
    QCOMPARE(names(), QStringList{"Two"});
    QCOMPARE(row("Two"), kept);
}

void PublisherListTest::rowDisappearsWhileMessageBoxIsOpen()
{
    m_installation.addLocal("vanishing", "Vanishing");
    m_installation.addLocal("staying", "Staying");
    m_window->updateList();
    row("Vanishing")->setSelected(true);

    Boxes boxes({QMessageBox::Yes});
    bool ticked = false;
    QStringList behindTheBox;
    boxes.onBox = [&](QMessageBox&) {
        Installation::remove("vanishing");
        ticked = QTest::qWaitFor([this] { return names().size() < 2; }, 20000);
        behindTheBox = names();
    };
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QVERIFY2(ticked, "the timer stops while a message box is open");
    QCOMPARE(behindTheBox, QStringList{"Staying"});
    QCOMPARE(names(), QStringList{"Staying"});
    QVERIFY(std::filesystem::exists(Installation::settingFile("staying")));
}

void PublisherListTest::nameIsNotRefreshed()
{
    m_installation.addLocal("renamed", "Old");
    m_window->updateList();
    m_installation.addLocal("renamed", "New");
    m_window->updateList();
    QCOMPARE(names(), QStringList{"Old"});
}

/// The record is read again for every query. The row does not change.
void PublisherListTest::missingFileIsLogged()
{
    m_installation.addLocal("kept", "Kept");
    WriteText(Installation::settingFile("kept") + ".bak", ""); // names the same publisher
    m_window->updateList();
    QCOMPARE(names(), QStringList{"Kept"});
    SetLogLevel(3);
    LogAgent agent;
    m_window->updateList();
    QVERIFY(agent.TakeAll().empty());
    std::filesystem::remove(Installation::settingFile("kept"));
    for (int tick = 0; tick < 2; ++tick) {
        m_window->updateList();
        QCOMPARE(names(), QStringList{"Kept"});
        std::string lines;
        for (const std::string& line : agent.TakeAll()) {
            lines += line;
        }
        for (const char* reader : {"CPublisherMgr::GetConnectType", "CBasicPublisherMgr::GetPublisherInfo"}) {
            const std::string line =
                std::string(reader) + ", \"" + Installation::settingFile("kept") + "\" is not found";
            QVERIFY2(lines.find(line) != std::string::npos, line.c_str());
        }
    }
}

void PublisherListTest::rowStaysWhenPublisherMovesToNetwork()
{
    m_installation.addLocal("moving", "Moving");
    m_window->updateList();
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    const QTreeWidgetItem* kept = row("Moving");

    Installation::addNetwork("moving", "Moving", "192.0.2.1"); // unreachable
    m_window->updateStatusOneDevice("moving", "RT-300III", "", "Ready", 3, -1, "-");
    m_window->fetchStatusAsync();
    QVERIFY(waitForTasks(10000));
    QCoreApplication::processEvents();
    QCOMPARE(row("Moving"), kept);
    QCOMPARE(kept->text(2), "192.0.2.1");
    QCOMPARE(kept->text(3), "Not connected");
    QCOMPARE(kept->text(4), "-");
}

void PublisherListTest::selectionAndScrollPositionSurvive()
{
    for (int i = 0; i < 60; ++i) {
        m_installation.addLocal("many" + std::to_string(i), "P" + std::to_string(i));
    }
    m_window->updateList();
    QTreeWidget* tree = m_window->treePublisherList;
    tree->setCurrentItem(row("P40"));
    row("P42")->setSelected(true);
    tree->verticalScrollBar()->setValue(35);
    QCOMPARE(tree->verticalScrollBar()->value(), 35);

    Installation::remove("many59");
    m_window->fetchStatusAsync();
    m_window->updateStatusOneDevice("many40", "RT-300III", "", "Ready", 3, -1, "-");

    QCOMPARE(tree->verticalScrollBar()->value(), 35);
    QCOMPARE(tree->currentItem(), row("P40"));
    QCOMPARE(tree->selectedItems().size(), 2);
    QVERIFY(row("P40")->isSelected() && row("P42")->isSelected());
    QCOMPARE(tree->topLevelItemCount(), 59);
}

void PublisherListTest::selectionSurvivesAChangeOfOrder()
{
    for (const char* name : {"A", "B", "C"}) {
        m_installation.addLocal(std::string("order-") + name, name);
    }
    m_window->updateList();
    m_window->treePublisherList->sortByColumn(3, Qt::AscendingOrder);
    m_window->treePublisherList->setCurrentItem(row("A"));
    m_window->updateStatusOneDevice("order-A", "RT-300III", "", "Ready", 0, -1, "-");
    QCOMPARE(names().last(), "A");
    QCOMPARE(m_window->treePublisherList->currentItem(), row("A"));
    QCOMPARE(m_window->treePublisherList->selectedItems(), QList<QTreeWidgetItem*>{row("A")});
}

void PublisherListTest::twoSelectedRowsLeaveRemoveEnabled()
{
    m_installation.addLocal("s1", "S1");
    m_installation.addLocal("s2", "S2");
    m_window->updateList();
    QTreeWidget* tree = m_window->treePublisherList;
    const auto click = [tree](QTreeWidgetItem* item, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, tree->visualItemRect(item).center());
    };
    QVERIFY(!m_window->deletePublisher->isEnabled());
    click(row("S1"));
    QCOMPARE(tree->selectedItems().size(), 1);
    QVERIFY(m_window->deletePublisher->isEnabled());
    click(row("S2"), Qt::ControlModifier);
    QCOMPARE(tree->selectedItems().size(), 2);
    QVERIFY(m_window->deletePublisher->isEnabled());
    QVERIFY(!m_window->showPublisherProperty->isEnabled());
    tree->clearSelection();
    QVERIFY(!m_window->deletePublisher->isEnabled());

    click(row("S1"));
    Installation::remove("s1");
    m_window->updateList();
    QVERIFY2(!m_window->deletePublisher->isEnabled(), "Remove is enabled without a selected row");
}

void PublisherListTest::findsRowByExactKey()
{
    m_installation.addLocal("Key", "Same name");
    m_installation.addLocal("key2", "Same name");
    m_installation.addLocal("noname", "");
    m_window->updateList();
    QCOMPARE(m_window->findItemByPublisherRegistID("Key")->data(0, Qt::UserRole).toString(), "Key");
    QCOMPARE(m_window->findItemByPublisherRegistID("key2")->data(0, Qt::UserRole).toString(), "key2");
    QCOMPARE(m_window->findItemByPublisherRegistID("noname")->text(0), "");
    QCOMPARE(m_window->findItemByPublisherRegistID("key"), nullptr);
    QCOMPARE(m_window->findItemByPublisherRegistID("Ke"), nullptr);
    QCOMPARE(m_window->findItemByPublisherRegistID(""), nullptr);
    QCOMPARE(m_window->findItemByPublisherRegistID("*"), nullptr);
}

void PublisherListTest::currentPublisherCanBeRead()
{
    m_installation.addLocal("current", "Current");
    m_window->updateList();
    m_window->treePublisherList->setCurrentItem(row("Current"));
    PUBLISHERINFO info;
    BOOL bConnection = 0;
    QVERIFY(m_window->getCurrentPublisherInfo(info, bConnection));
    QCOMPARE(bConnection, 1);
    QCOMPARE(QString::fromStdString(info.strPublisherName), "Current");
    QCOMPARE(QString::fromStdString(info.strPublisherRegistID), "current");
    QCOMPARE(m_window->getPublisherDevTypeStr(info, "current"), "RT-300III");

    Installation::remove("current");
    QVERIFY(!m_window->getCurrentPublisherInfo(info, bConnection));
}

void PublisherListTest::readingWithoutCurrentRowAborts()
{
    QCOMPARE(m_window->treePublisherList->currentItem(), nullptr);
    const pid_t child = fork();
    if (child == 0) {
        ::close(STDERR_FILENO);
        PUBLISHERINFO info;
        BOOL bConnection = 0;
        m_window->getCurrentPublisherInfo(info, bConnection);
        _exit(0);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY2(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT, "no assertion aborted the process");
}

void PublisherListTest::unusualFileNames_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::newRow("not UTF-8") << QByteArray("caf\xe9 \xff\xfe");
    QTest::newRow("UTF-8") << QByteArray("\xe3\x83\x87\xe3\x82\xa3\xe3\x82\xb9\xe3\x82\xaf");
    QTest::newRow("255 bytes with the extension") << QByteArray(251, 'x');
    QTest::newRow("blanks, quotes, special characters") << QByteArray(" '\"$(x)%s%n;*?[]");
    QTest::newRow("line feed") << QByteArray("a\nb");
}

void PublisherListTest::unusualFileNames()
{
    QFETCH(QByteArray, id);
    const std::string name = id.toStdString();
    WriteText(Installation::settingFile(name), "[Common]\nGUID={none}\nPublisherName=Strange\n");
    WriteText(Installation::settingFile("other"), "[Common]\nGUID={none}\nPublisherName=Other\n");
    m_window->updateList();
    m_window->updateList();
    QCOMPARE(names(), (QStringList{"Other", "Strange"}));

    row("Strange")->setText(3, "untouched");
    QVERIFY(waitForTasks(10000)); // a running query would suppress the next one
    m_window->fetchStatusAsync();
    QTRY_COMPARE(row("Strange")->text(3), "Not connected"); // the reply reached its row

    row("Strange")->setSelected(true);
    Boxes boxes({QMessageBox::Yes});
    m_window->deletePublisher->trigger();
    QVERIFY(boxes.allAnswered());
    QVERIFY(!std::filesystem::exists(Installation::settingFile(name)));
    QVERIFY(std::filesystem::exists(Installation::settingFile("other")));
    QCOMPARE(names(), QStringList{"Other"});
}

void PublisherListTest::entriesWithoutPublisher()
{
    const std::string folder = std::string(PUBLISHER_SETTING_DIR) + "/";
    WriteText(folder + ".ini", "[Common]\nPublisherName=Nameless\n");
    WriteText(folder + "backup.ini.bak", "[Common]\nPublisherName=Backup\n"); // names the absent "backup.ini"
    WriteText(folder + "readme.txt", "[Common]\nPublisherName=Readme\n");
    std::filesystem::create_directories(folder + "folder.ini");
    m_installation.addLocal("twice", "Twice");
    WriteText(folder + "twice.ini~", "[Common]\nPublisherName=Copy\n"); // duplicates the id "twice"
    m_window->updateList();
    m_window->updateList();
    // A folder with this name can be opened and contains no keys, so it counts as a publisher without a name.
    QCOMPARE(names(), (QStringList{"", "Twice"}));
}

void PublisherListTest::longNameIsTruncated()
{
    m_installation.addLocal("long", std::string(5000, 'L'));
    m_window->updateList();
    QCOMPARE(m_window->findItemByPublisherRegistID("long")->text(0), QString(255, 'L'));
}

void PublisherListTest::corruptFilesAreTolerated()
{
    m_installation.addLocal("sane", "Sane");
    std::mt19937 random(20260101);
    const auto rubbish = [&random](size_t size) {
        std::string bytes(size, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random());
        }
        return bytes;
    };
    const std::string lineEnds[] = {"\n", "\r\n", "", std::string(1, '\0')};
    for (int i = 0; i < 40; ++i) {
        std::string text = "[Common]\nGUID=" + rubbish(300) + lineEnds[i % 4] +
                           "PublisherName=" + rubbish(2000) + lineEnds[i % 4] +
                           "PublisherConnectionType=" + rubbish(20) + "\n" + rubbish(3000);
        WriteText(Installation::settingFile("rubbish" + std::to_string(i)),
                  i % 2 == 0 ? text : rubbish(20000));
    }
    const std::string registry = ReadText(REGISTRY_FILE);
    WriteText(REGISTRY_FILE, registry + "[" + rubbish(5000) + "\n\"Connected\"=dword:" + rubbish(50) + "\n");
    const std::string sane = ReadText(Installation::settingFile("sane"));
    m_window->updateList();
    m_window->fetchStatusAsync();
    QVERIFY(waitForTasks(20000));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->findItemByPublisherRegistID("sane")->text(0), "Sane");
    QCOMPARE(ReadText(Installation::settingFile("sane")), sane);
}

QTEST_MAIN(PublisherListTest)
#include "PublisherListTest.moc"
