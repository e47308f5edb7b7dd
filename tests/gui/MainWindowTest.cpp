// The initial state of the main window: widgets, actions, texts, enabled states and images.
#include "Boxes.h"
#include "Installation.h"
#include "PubSetup.h"
#include "QtVersion.h"
#include "SameImage.h"

#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <unistd.h>

namespace {

constexpr int rightCentre = 0x0082; // Qt::AlignRight | Qt::AlignVCenter

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isCentredOnTheScreen();
    void hasItsTitleAndIcon();
    void listHasItsColumns();
    void listIsFlatAndSortable();
    void menusHaveTheirActions();
    void actionsHaveTheirTextsAndImages();
    void toolBarHasThreeActions();
    void rightClickDoesNotHideTheToolBar();
    void contextMenuHasRemoveAndProperties();
    void mnemonicsAreUnique();
    void widgetsHaveAccessibleNames();
    void imagesExistInEverySize();
    void emptyListLeavesSelectionActionsDisabled();
    void emptyListHasANote();
    void noteOfTheEmptyListStaysCentred();
    void noteOfTheEmptyListIgnoresClicks();
    void someActionsRequireRoot();
    void otherActionsAreEnabled();
    void pollTimerRuns();
    void signalsAndSlotsAreDeclaredInOrder();
    void exitClosesTheWindow();
    void aboutBoxShowsTheProgram();
    void publishModeWarningHasItsText();
    void publishModeWarningNeedsNoParent();

private:
    QStringList textsOf(const QList<QAction*>& actions);

    Installation m_installation;
    std::unique_ptr<PubSetup> m_window;
};

void MainWindowTest::init()
{
    m_installation = Installation();
    m_window = std::make_unique<PubSetup>(nullptr);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void MainWindowTest::cleanup()
{
    m_window.reset();
}

QStringList MainWindowTest::textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions) {
        texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
    }
    return texts;
}

void MainWindowTest::isCentredOnTheScreen()
{
    QCOMPARE(m_window->size(), QSize(800, 300));
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint distance = m_window->geometry().center() - available.center();
    QVERIFY2(distance.manhattanLength() <= 2,
             qPrintable(QString("%1 %2").arg(distance.x()).arg(distance.y())));
}

void MainWindowTest::hasItsTitleAndIcon()
{
    QCOMPARE(m_window->windowTitle(), "ARVEN Ulmar Disc Setup");
    QVERIFY(!m_window->windowIcon().isNull());
    QVERIFY(showsImage(m_window->windowIcon(), ":/res/UDSetup.png", 48));
}

void MainWindowTest::listHasItsColumns()
{
    auto tree = m_window->findChild<QTreeWidget*>("treePublisherList");
    QVERIFY(tree);
    struct Column
    {
        const char* header;
        bool right;
        int width;
    };
    const Column columns[] = {
        {"Name", false, 100},           {"Model name", false, 120}, {"Host Name", false, 100},
        {"Status", false, 120},         {"Waiting", true, 100},     {"Transmitting", true, 100},
        {"Available Space", true, 100},
    };
    QCOMPARE(tree->columnCount(), 7);
    QCOMPARE(tree->header()->defaultSectionSize(), 100);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(tree->headerItem()->text(i), columns[i].header);
        QCOMPARE(tree->headerItem()->textAlignment(i) == rightCentre, columns[i].right);
        if (i < 6) { // the last column stretches
            QCOMPARE(tree->header()->sectionSize(i), columns[i].width);
        }
    }
    QCOMPARE(tree->sortColumn(), 0);
    QCOMPARE(tree->header()->sortIndicatorSection(), 0);
    QCOMPARE(tree->header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void MainWindowTest::listIsFlatAndSortable()
{
    const QTreeWidget* tree = m_window->treePublisherList;
    QCOMPARE(tree->selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(!tree->rootIsDecorated());
    QVERIFY(tree->isSortingEnabled());
    QCOMPARE(tree->topLevelItemCount(), 0);
}

void MainWindowTest::menusHaveTheirActions()
{
    auto menubar = m_window->findChild<QMenuBar*>("menubar");
    QVERIFY(menubar);
    QCOMPARE(textsOf(menubar->actions()), (QStringList{"&File", "&Edit", "&Tool", "&Help"}));
    const struct
    {
        const char* name;
        QStringList actions;
    } menus[] = {
        {"fileMenu", {"E&xit"}},
        {"editMenu", {"&Add...", "&Remove...", "|", "&Properties..."}},
        {"toolMenu", {"Common &Setting for Publishing\u2026", "|", "Collect and Save Logs"}},
        {"helpMenu", {"&About Ulmar Disc Setup"}},
    };
    for (const auto& menu : menus) {
        auto found = m_window->findChild<QMenu*>(menu.name);
        QVERIFY2(found, menu.name);
        QCOMPARE(textsOf(found->actions()), menu.actions);
    }
}

void MainWindowTest::actionsHaveTheirTextsAndImages()
{
    const struct
    {
        const char* name;
        const char* text;
        const char* image;
        const char* shortcut;
    } table[] = {
        {"exitProgram", "E&xit", nullptr, ""},
        {"addPublisher", "&Add...", ":/res/A1-1.png", ""},
        {"deletePublisher", "&Remove...", ":/res/A5-1.png", "Del"},
        {"showPublisherProperty", "&Properties...", ":/res/A2-1.png", ""},
        {"showSetting", "Common &Setting for Publishing\u2026", nullptr, ""},
        {"collectAndSaveLogs", "Collect and Save Logs", nullptr, ""},
        {"showAbout", "&About Ulmar Disc Setup", nullptr, ""},
        {"udmMenu", "Start Ulmar Disc &Monitor", ":/res/A4-1.png", ""},
    };
    for (const auto& row : table) {
        auto action = m_window->findChild<QAction*>(row.name);
        QVERIFY2(action, row.name);
        QCOMPARE(action->text(), QString::fromUtf8(row.text));
        QCOMPARE(action->shortcut().toString(), QString(row.shortcut));
        QCOMPARE(action->icon().isNull(), row.image == nullptr);
        if (row.image) {
            QVERIFY2(showsImage(action->icon(), row.image, 22), row.image);
        }
    }
    for (const QWidget* widget : QApplication::allWidgets()) {
        QVERIFY(!widget->actions().contains(m_window->udmMenu));
    }
}

void MainWindowTest::toolBarHasThreeActions()
{
    auto toolBar = m_window->findChild<QToolBar*>("toolBar");
    QVERIFY(toolBar);
    QCOMPARE(textsOf(toolBar->actions()), (QStringList{"&Add...", "&Remove...", "&Properties..."}));
    QCOMPARE(m_window->toolBarArea(toolBar), Qt::TopToolBarArea);
    QVERIFY(!toolBar->isMovable());
    QVERIFY(!toolBar->isFloatable());
    QCOMPARE(toolBar->iconSize(), QSize(22, 22));
    QCOMPARE(toolBar->styleSheet(), "QToolButton { margin-bottom: 2px; }");
}

void MainWindowTest::rightClickDoesNotHideTheToolBar()
{
    for (QWidget* place :
         {static_cast<QWidget*>(m_window->toolBar), static_cast<QWidget*>(m_window->menubar)}) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), place->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(place, &event);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }
}

void MainWindowTest::contextMenuHasRemoveAndProperties()
{
    QCOMPARE(m_window->treePublisherList->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(textsOf(m_window->treePublisherList->actions()), (QStringList{"&Remove...", "&Properties..."}));
}

void MainWindowTest::mnemonicsAreUnique()
{
    QList<QWidget*> groups = {m_window->menubar};
    for (QMenu* menu : m_window->findChildren<QMenu*>()) {
        groups << menu;
    }
    QVERIFY(groups.size() >= 5);
    for (const QWidget* group : groups) {
        QStringList keys;
        for (const QAction* action : group->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (!key.isEmpty()) {
                QVERIFY2(!keys.contains(key.toString()), qPrintable(action->text()));
                keys << key.toString();
            }
        }
    }
}

void MainWindowTest::widgetsHaveAccessibleNames()
{
    QCOMPARE(m_window->treePublisherList->accessibleName(), "Publishers");
    QVERIFY(!m_window->treePublisherList->accessibleDescription().isEmpty());
    QVERIFY(!m_window->toolBar->windowTitle().isEmpty());
    QVERIFY(m_window->treePublisherList->focusPolicy() & Qt::TabFocus);
}

void MainWindowTest::imagesExistInEverySize()
{
    for (const char* name : {"A1-1", "A2-1", "A4-1", "A5-1", "A6-1", "A7-1"}) {
        const QString base = QStringLiteral(":/res/") + name;
        QCOMPARE(QImage(base + ".png").size(), QSize(22, 22));
        QCOMPARE(QImage(base + "@2x.png").size(), QSize(44, 44));
        QCOMPARE(QImage(base + "-48.png").size(), QSize(48, 48));
        QCOMPARE(QImage(base + "-48@2x.png").size(), QSize(96, 96));
    }
    QCOMPARE(QImage(":/res/UDSetup.png").size(), QSize(48, 48));
    QCOMPARE(QImage(":/res/UDSetup@2x.png").size(), QSize(96, 96));
    QCOMPARE(QImage(":/res/UDSetup-22.png").size(), QSize(22, 22));
    QCOMPARE(QImage(":/res/UDSetup-22@2x.png").size(), QSize(44, 44));
}

void MainWindowTest::emptyListLeavesSelectionActionsDisabled()
{
    QCOMPARE(m_window->treePublisherList->topLevelItemCount(), 0);
    QVERIFY(!m_window->deletePublisher->isEnabled());
    QVERIFY(!m_window->showPublisherProperty->isEnabled());
}

void MainWindowTest::emptyListHasANote()
{
    QTreeWidget* tree = m_window->treePublisherList;
    const auto note = m_window->findChild<QLabel*>("labelEmptyList");
    QVERIFY(note);
    const QString text = getuid() == 0
                             ? "No publishers are registered. To add one, choose Add in the Edit menu."
                             : "No publishers are registered.";
    const QString description = "The registered disc publishers and their status";
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), text);
    QCOMPARE(tree->accessibleDescription(), text);

    m_installation.addLocal("a", "A");
    m_window->updateList();
    QVERIFY(!note->isVisible());
    QCOMPARE(tree->accessibleDescription(), description);

    m_installation.addLocal("b", "B");
    m_window->updateList();
    Installation::remove("a");
    m_window->updateList();
    QVERIFY(!note->isVisible());

    Installation::remove("b");
    m_window->updateList();
    QVERIFY(note->isVisible());
    QCOMPARE(tree->accessibleDescription(), text);
}

void MainWindowTest::noteOfTheEmptyListStaysCentred()
{
    QTreeWidget* tree = m_window->treePublisherList;
    const auto note = m_window->findChild<QLabel*>("labelEmptyList");
    QVERIFY(note);
    QVERIFY(note->alignment() == Qt::AlignCenter);
    for (const QSize size : {QSize(800, 300), QSize(1000, 500), QSize(300, 250)}) {
        m_window->resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), size);
        QCOMPARE(note->mapTo(m_window.get(), QPoint()), tree->viewport()->mapTo(m_window.get(), QPoint()));
        QCOMPARE(note->size(), tree->viewport()->size());
    }
    tree->horizontalScrollBar()->setValue(tree->horizontalScrollBar()->maximum());
    QVERIFY(tree->horizontalScrollBar()->value() > 0);
    QCOMPARE(note->mapTo(m_window.get(), QPoint()), tree->viewport()->mapTo(m_window.get(), QPoint()));
}

void MainWindowTest::noteOfTheEmptyListIgnoresClicks()
{
    QTreeWidget* tree = m_window->treePublisherList;
    QCOMPARE(m_window->childAt(tree->viewport()->mapTo(m_window.get(), tree->viewport()->rect().center())),
             tree->viewport());
}

void MainWindowTest::someActionsRequireRoot()
{
    for (const QAction* action :
         {m_window->addPublisher, m_window->showSetting, m_window->collectAndSaveLogs}) {
        QVERIFY2(action->isEnabled() == (getuid() == 0), qPrintable(action->text()));
    }
    m_window->updateMenu();
    for (const QAction* action :
         {m_window->addPublisher, m_window->showSetting, m_window->collectAndSaveLogs}) {
        QVERIFY2(action->isEnabled() == (getuid() == 0), qPrintable(action->text()));
    }
}

void MainWindowTest::otherActionsAreEnabled()
{
    for (const QAction* action : {m_window->exitProgram, m_window->showAbout, m_window->udmMenu}) {
        QVERIFY2(action->isEnabled(), qPrintable(action->text()));
    }
}

void MainWindowTest::pollTimerRuns()
{
    QList<QTimer*> timers = m_window->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers[0]->interval(), 5000);
    QVERIFY(timers[0]->isActive());
    QVERIFY(!timers[0]->isSingleShot());
}

void MainWindowTest::signalsAndSlotsAreDeclaredInOrder()
{
    const QMetaObject& meta = PubSetup::staticMetaObject;
    QList<QByteArray> declared;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        declared << meta.method(i).methodSignature();
    }
    const QByteArray row = "(QString,QString,QString,QString,int,int,QString)";
    QCOMPARE(declared,
             (QList<QByteArray>{"updateListSignal()", "updateStatusOneDeviceSignal" + row, "showAddDialog()",
                                "showDeleteDialog()", "showPropertyDialog()", "showSettingDialog()",
                                "doCollectAndSaveLogs()", "showAboutDialog()", "fetchStatusAsync()",
                                "updateMenu()", "updateList()", "updateStatusOneDevice" + row}));
}

void MainWindowTest::exitClosesTheWindow()
{
    QVERIFY(m_window->isVisible());
    m_window->exitProgram->trigger();
    QVERIFY(!m_window->isVisible());
}

void MainWindowTest::aboutBoxShowsTheProgram()
{
    QString title, version, description;
    QSize size, smallest, largest;
    bool image = false, modal = false, closedByOk = false;
    QPointer<QDialog> seen;
    QTimer::singleShot(0, this, [&] {
        auto dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            return;
        }
        seen = dialog;
        modal =
            dialog->isModal() && dialog->testAttribute(Qt::WA_DeleteOnClose) == false; // cleared by exec()
        title = dialog->windowTitle();
        size = dialog->size();
        smallest = dialog->minimumSize();
        largest = dialog->maximumSize();
        for (const QLabel* label : dialog->findChildren<QLabel*>()) {
            if (pictureOf(*label).isNull() == false) {
                image = true;
            } else if (label->objectName() == "versionLabel") {
                version = label->text();
            } else {
                description = label->text();
            }
        }
        QPushButton* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QTest::mouseClick(ok, Qt::LeftButton);
        closedByOk = !dialog->isVisible();
    });
    m_window->showAbout->trigger();
    QVERIFY(modal);
    QCOMPARE(title, "About ARVEN Ulmar Disc Setup");
    QCOMPARE(version, "ARVEN Ulmar Disc Setup for Linux");
    QVERIFY(!description.isEmpty());
    QVERIFY(image);
    QCOMPARE(smallest, size);
    QCOMPARE(largest, size);
    QVERIFY(closedByOk);
    QVERIFY2(seen.isNull(), "the closed message box was not destroyed");
}

void MainWindowTest::publishModeWarningHasItsText()
{
    Boxes boxes({QMessageBox::Ok});
    PubSetup::showWariningBeforeProperty(m_window.get());
    QVERIFY(boxes.allAnswered());
    const SeenBox box = boxes.seen()[0];
    QCOMPARE(box.title, "ARVEN Ulmar Disc Setup");
    QCOMPARE(box.text,
             "The Publish Mode registered in the output device could not be obtained, so the previously "
             "displayed  value is displayed.\nThe displayed Publish Mode and stacker settings may be "
             "different from the values that are actually registered.");
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void MainWindowTest::publishModeWarningNeedsNoParent()
{
    Boxes boxes({QMessageBox::Ok});
    PubSetup::showWariningBeforeProperty(nullptr);
    QVERIFY(boxes.allAnswered());
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
