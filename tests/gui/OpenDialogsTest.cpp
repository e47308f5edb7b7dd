// Tests how the list window opens its dialogs, what is shown before them, and what continues while they are
// open.
#include "Boxes.h"
#include "Installation.h"
#include "LocalRoom.h"
#include "MyRunnable.h"
#include "PubSetup.h"
#include "Shown.h"
#include "WindowParts.h"
#include "propertyDialog.h"
#include "settingDialog.h"

#include <QItemSelectionModel>
#include <QProgressDialog>
#include <QTest>

#include <optional>

class OpenDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void propertiesOpenFromEveryPlace_data();
    void propertiesOpenFromEveryPlace();
    void selectionEnablesActions();
    void doubleClickOpensCurrentRowOfSelection();
    void selectedRowOpensWithoutACurrentRow();
    void unreadablePublisherOpensNoDialog();
    void unavailablePublishModeIsReportedFirst();
    void stalledServiceShowsTheIndicator();
    void repeatedDoubleClicksOpenOneDialog();
    void rowShowsSavedName();
    void rowStaysAfterCancel();
    void rowStaysAfterApplyAndCancel();
    void savedNameGoesToCurrentRow();
    void savedNameWithoutRows();
    void currentRowKeepsItsTextWhenPublisherIsRemoved();
    void unreachableServerShowsStoredName();
    void publisherRemovedBeforeTheDialogOpens_data();
    void publisherRemovedBeforeTheDialogOpens();
    void publisherRemovedWhileDialogIsOpen();
    void pollingContinuesWhileDialogIsOpen();
    void commonSettingOpens();

private:
    QTreeWidgetItem* row(const QString& name) const;
    void doubleClick(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    Installation m_installation;
    std::optional<LocalRoom> m_service;
    std::unique_ptr<PubSetup> m_window;
};

void OpenDialogsTest::init()
{
    m_installation = Installation();
    m_service.emplace(std::vector<std::string>{"a", "b", "c"});
    for (const char* id : {"a", "b", "c"}) {
        m_installation.addLocal(id, QByteArray(id).toUpper().toStdString());
    }
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 3);
}

void OpenDialogsTest::cleanup()
{
    m_window.reset();
    m_service.reset();
    QVERIFY(waitForTasks(10000));
    QCOMPARE(shownWindow<propertyDialogEx>(), nullptr);
}

QTreeWidgetItem* OpenDialogsTest::row(const QString& name) const
{
    return m_window->treePublisherList->findItems(name, Qt::MatchExactly, 0).value(0);
}

void OpenDialogsTest::doubleClick(const QString& name, Qt::KeyboardModifiers modifiers)
{
    QTreeWidget* tree = m_window->treePublisherList;
    const QPoint place = tree->visualItemRect(row(name)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, modifiers, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, modifiers, place);
}

void OpenDialogsTest::propertiesOpenFromEveryPlace_data()
{
    QTest::addColumn<QString>("place");
    for (const char* place : {"action", "tool bar", "menu", "double click"}) {
        QTest::newRow(place) << place;
    }
}

void OpenDialogsTest::propertiesOpenFromEveryPlace()
{
    QFETCH(QString, place);
    bool modal = false, warned = false;
    QWidget* parent = m_window.get();
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        modal = shown.isModal() && QApplication::activeModalWidget() == &shown;
        parent = shown.parentWidget();
        shown.reject();
    });
    WhenShown<QMessageBox> warning([&](QMessageBox& box) {
        warned = true;
        box.reject();
    });
    m_window->treePublisherList->setCurrentItem(row("B"));
    QVERIFY(m_window->showPublisherProperty->isEnabled());
    if (place == "action") {
        m_window->showPublisherProperty->trigger();
    } else if (place == "tool bar") {
        QTest::mouseClick(m_window->toolBar->widgetForAction(m_window->showPublisherProperty),
                          Qt::LeftButton);
    } else if (place == "menu") {
        chooseEntry(*m_window, m_window->editMenu, m_window->showPublisherProperty);
    } else {
        doubleClick("B");
    }
    QTRY_VERIFY(dialog.seen());
    QVERIFY(modal);
    QCOMPARE(parent, nullptr);
    QVERIFY(!warned);
    QCOMPARE(m_service->count("18 b"), 1);
}

void OpenDialogsTest::selectionEnablesActions()
{
    const struct
    {
        QStringList rows;
        bool properties;
        bool remove;
    } table[] = {
        {{}, false, false}, {{"B"}, true, true}, {{"A", "B"}, false, true}, {{"A", "B", "C"}, false, true}};
    for (const auto& selection : table) {
        m_window->treePublisherList->clearSelection();
        for (const QString& name : selection.rows) {
            row(name)->setSelected(true);
        }
        QCOMPARE(m_window->showPublisherProperty->isEnabled(), selection.properties);
        QCOMPARE(m_window->deletePublisher->isEnabled(), selection.remove);
    }
}

void OpenDialogsTest::doubleClickOpensCurrentRowOfSelection()
{
    QTreeWidget* tree = m_window->treePublisherList;
    tree->selectAll();
    int selected = 0;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        selected = static_cast<int>(tree->selectedItems().size());
        shown.reject();
    });
    doubleClick("B", Qt::ControlModifier);
    QTRY_VERIFY(dialog.seen());
    QVERIFY2(selected >= 2, qPrintable(QString::number(selected)));
    QCOMPARE(tree->currentItem(), row("B"));
    QCOMPARE(m_service->count("18 b"), 1);
    QCOMPARE(m_service->count("18 a") + m_service->count("18 c"), 0);
}

/// A row that is inserted while the empty list has the keyboard focus does not become the current row;
/// "select all" does not make it current either.
void OpenDialogsTest::selectedRowOpensWithoutACurrentRow()
{
    QTreeWidget* tree = m_window->treePublisherList;
    for (const char* id : {"a", "b", "c"}) {
        Installation::remove(id);
    }
    m_window->updateList();
    tree->setFocus();
    QVERIFY(tree->hasFocus());
    QCOMPARE(tree->topLevelItemCount(), 0);
    m_installation.addLocal("b", "B");
    m_window->updateList();
    QTest::keyClick(tree, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem*>{row("B")});
    QCOMPARE(tree->currentItem(), nullptr);
    QVERIFY(m_window->showPublisherProperty->isEnabled());

    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        QCOMPARE(shown.textPublisherName->text(), "B");
        m_installation.addLocal("b", "New name");
        shown.accept();
    });
    m_window->showPublisherProperty->trigger();
    QVERIFY(dialog.seen());
    QCOMPARE(m_service->count("18 b"), 1);
    QVERIFY(row("New name") && !row("B"));
}

void OpenDialogsTest::unreadablePublisherOpensNoDialog()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    Installation::remove("b");
    Boxes boxes({});
    bool opened = false;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        opened = true;
        shown.reject();
    });
    m_window->showPropertyDialog();
    QVERIFY(!opened);
    QVERIFY(boxes.seen().empty());
}

void OpenDialogsTest::unavailablePublishModeIsReportedFirst()
{
    m_service.reset(); // the service is not running
    m_window->treePublisherList->setCurrentItem(row("B"));
    QWidget* parent = nullptr;
    bool before = false;
    Boxes boxes({QMessageBox::Ok});
    boxes.onBox = [&](QMessageBox& box) {
        parent = box.parentWidget();
        before = shownWindow<propertyDialogEx>() == nullptr;
    };
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) { shown.reject(); });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QVERIFY(boxes.allAnswered());
    QCOMPARE(boxes.seen()[0].text,
             "The Publish Mode registered in the output device could not be obtained, so the previously "
             "displayed  value is displayed.\nThe displayed Publish Mode and stacker settings may be "
             "different from the values that are actually registered.");
    QCOMPARE(boxes.seen()[0].icon, QMessageBox::Warning);
    QVERIFY(before);
    QCOMPARE(parent, m_window.get());
}

void OpenDialogsTest::stalledServiceShowsTheIndicator()
{
    m_service->hold("18 b");
    m_window->treePublisherList->setCurrentItem(row("B"));
    int served = 0;
    bool early = false;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, [&] {
        auto indicator = shownWindow<QProgressDialog>();
        if (indicator && m_service->count("18 b") == 1 && ++served == 5) {
            early = shownWindow<propertyDialogEx>() != nullptr;
            m_service->release("18 b");
        }
    });
    ticks.start(20);
    bool indicatorGone = false;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        indicatorGone = shownWindow<QProgressDialog>() == nullptr;
        shown.reject();
    });
    m_window->showPublisherProperty->trigger();
    QVERIFY(dialog.seen());
    QVERIFY2(served >= 5, "the window does not process events while the service stalls");
    QVERIFY2(!early, "the dialog opened before the reply");
    QVERIFY(indicatorGone);
}

void OpenDialogsTest::repeatedDoubleClicksOpenOneDialog()
{
    m_service->hold("18 b");
    int clicks = 0, opened = 0;
    QTimer impatience;
    connect(&impatience, &QTimer::timeout, this, [&] {
        if (m_service->count("18 b") == 0 || !shownWindow<QProgressDialog>()) {
            return;
        }
        QTreeWidget* tree = m_window->treePublisherList;
        const QPoint place = tree->viewport()->mapTo(m_window.get(), tree->visualItemRect(row("B")).center());
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::keyClick(shownWindow<QProgressDialog>(), Qt::Key_Escape);
        if (++clicks == 3) {
            m_service->release("18 b");
        }
    });
    impatience.start(20);
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (auto shown = shownWindow<propertyDialogEx>()) {
            opened += countShown<propertyDialogEx>();
            shown->reject();
        }
    });
    watch.start(50);
    doubleClick("B");
    QTRY_COMPARE(opened, 1);
    QCOMPARE(clicks, 3);
    QCoreApplication::processEvents();
    QCOMPARE(opened, 1);
    QCOMPARE(m_service->count("18 b"), 1);
}

void OpenDialogsTest::rowShowsSavedName()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        m_installation.addLocal("b", "New name");
        shown.accept();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(m_window->treePublisherList->currentItem()->text(0), "New name");
    QCOMPARE(m_window->treePublisherList->currentItem(), row("New name"));
    QVERIFY(!row("B") && row("A") && row("C"));
}

void OpenDialogsTest::rowStaysAfterCancel()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        m_installation.addLocal("b", "Other");
        shown.reject();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QVERIFY(row("B") && !row("Other"));
}

void OpenDialogsTest::rowStaysAfterApplyAndCancel()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        QTest::keyClicks(shown.textPublisherName, "2"); // replaces the name, which is selected
        QTest::mouseClick(shown.applyButton, Qt::LeftButton);
        QTest::mouseClick(shown.cancelButton, Qt::LeftButton);
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(QString::fromStdString(CPublisherMgr(true).GetPublisherName("b")), "2");
    QVERIFY(row("B") && !row("2"));
}

void OpenDialogsTest::savedNameGoesToCurrentRow()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        m_installation.addLocal("b", "New");
        m_window->treePublisherList->setCurrentItem(row("C"));
        shown.accept();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QVERIFY(row("A") && row("B") && row("New") && !row("C"));
}

void OpenDialogsTest::savedNameWithoutRows()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        for (const char* id : {"a", "b", "c"}) {
            Installation::remove(id);
        }
        m_window->updateList();
        shown.accept();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
}

void OpenDialogsTest::currentRowKeepsItsTextWhenPublisherIsRemoved()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        Installation::remove("b");
        m_window->updateList();
        m_window->treePublisherList->setCurrentItem(row("C"));
        shown.accept();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 2);
    QVERIFY(row("A") && row("C"));
}

void OpenDialogsTest::unreachableServerShowsStoredName()
{
    Installation::addNetwork("n", "N", "127.0.0.99"); // nothing listens there
    m_window->updateList();
    m_window->treePublisherList->setCurrentItem(row("N"));
    Boxes boxes({QMessageBox::Ok}); // the publish mode is unknown
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        Installation::addNetwork("n", "New name", "127.0.0.99");
        shown.accept();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QVERIFY(boxes.allAnswered());
    QVERIFY(row("New name") && !row("N"));
}

void OpenDialogsTest::publisherRemovedBeforeTheDialogOpens_data()
{
    QTest::addColumn<bool>("network");
    QTest::newRow("local") << false;
    QTest::newRow("network") << true;
}

void OpenDialogsTest::publisherRemovedBeforeTheDialogOpens()
{
    QFETCH(bool, network);
    if (network) {
        Installation::addNetwork("b", "B", "127.0.0.99"); // nothing listens there
    } else {
        udsim::Fault fault;
        fault.kind = udsim::Fault::Kind::result;
        fault.number = 1001;
        fault.control = 18;
        (*m_service)->setFault(fault);
    }
    m_window->treePublisherList->setCurrentItem(row("B"));
    Boxes boxes({QMessageBox::Ok}); // the publish mode is unknown
    boxes.onBox = [](QMessageBox&) { Installation::remove("b"); };
    WhenShown<propertyDialogEx> dialog([](propertyDialogEx& shown) { shown.reject(); });
    m_window->showPropertyDialog();
    QVERIFY(boxes.allAnswered());
    QVERIFY(!dialog.seen());
}

void OpenDialogsTest::publisherRemovedWhileDialogIsOpen()
{
    m_window->treePublisherList->setCurrentItem(row("B"));
    bool rowGone = false, staysOpen = false;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        Installation::remove("b");
        m_window->updateList();
        rowGone = row("B") == nullptr;
        staysOpen = shown.isVisible();
        shown.reject();
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QVERIFY(rowGone);
    QVERIFY(staysOpen);
    QVERIFY(row("A") && row("C"));
}

void OpenDialogsTest::pollingContinuesWhileDialogIsOpen()
{
    QVERIFY(m_service->waitFor("22 a", 1));
    m_window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).at(0)->setInterval(50);
    m_window->treePublisherList->setCurrentItem(row("B"));
    int before = 0;
    QPointer<QDialog> open;
    QTimer end;
    connect(&end, &QTimer::timeout, this, [&] {
        if (row("A") && row("A")->text(3) == "Error" && row("D") && m_service->count("22 a") >= before + 3) {
            open->accept();
        }
    });
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        open = &shown;
        before = m_service->count("22 a");
        (*m_service)->tell("a", "error 19");
        m_installation.addLocal("d", "D");
        end.start(20);
        QTimer::singleShot(15000, &shown, &QDialog::reject);
    });
    m_window->showPropertyDialog();
    QVERIFY(dialog.seen());
    QCOMPARE(row("A")->text(3), "Error");
    QVERIFY2(row("D"), "a new publisher has no row");
    QVERIFY(m_service->count("22 a") >= before + 3);
}

void OpenDialogsTest::commonSettingOpens()
{
    bool modal = false;
    QWidget* parent = m_window.get();
    WhenShown<settingDialogEx> dialog([&](settingDialogEx& shown) {
        modal = shown.isModal() && QApplication::activeModalWidget() == &shown;
        parent = shown.parentWidget();
        shown.reject();
    });
    m_window->showSetting->trigger();
    QVERIFY(dialog.seen());
    QVERIFY(modal);
    QCOMPARE(parent, nullptr);
    QCOMPARE(shownWindow<settingDialogEx>(), nullptr);
}

QTEST_MAIN(OpenDialogsTest)
#include "OpenDialogsTest.moc"
