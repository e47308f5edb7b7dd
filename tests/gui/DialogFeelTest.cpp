// Usability of all windows without a mouse, with a screen reader, with a large font, in other languages and
// in dark colours. Runs at several screen scales (see CMakeLists.txt).
#include "AllWindows.h"
#include "KeyboardFeel.h"
#include "QtVersion.h"
#include "VisualFeel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QVBoxLayout>
#include <QXmlStreamReader>

#include <initializer_list>
#include <utility>

namespace {

constexpr int plainPoints = 10; // the usual size on desktops
constexpr QSize smallScreen(800, 560);
constexpr QSize screen(1024, 768);

/// Makes every text 40 % longer, as a translation may.
class LongTexts : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* sourceText, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        QString more = text.left((text.size() * 2 + 4) / 5);
        return text + more.remove(QRegularExpression("[&\n]"));
    }
    bool isEmpty() const override
    {
        return false;
    }
};

QPalette darkPalette()
{
    const QColor window(49, 54, 59), base(35, 38, 41), text(239, 240, 241), greyed(120, 124, 128);
    QPalette palette(text, window, window.lighter(150), window.darker(150), window.darker(110), text, base);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(34, 103, 140));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, greyed);
    }
    return palette;
}

/// A desktop configuration.
enum class Desktop
{
    plain,
    largeFont,
    longTexts,
    translated, ///< with the catalogue that the row names
    dark,
    turnsDark, ///< while the window is open
};

class DesktopSetup
{
public:
    /// Applies the desktop of the current data row.
    DesktopSetup() : m_font(QApplication::font()), m_palette(QApplication::palette())
    {
        QFETCH(int, desktopNumber);
        QFETCH(QString, catalogue);
        desktop = static_cast<Desktop>(desktopNumber);
        QFont font = m_font;
        if (desktop == Desktop::largeFont) {
            font.setPointSizeF(font.pointSizeF() * 1.5);
            QApplication::setFont(font);
        }
        if (desktop == Desktop::longTexts) {
            QCoreApplication::installTranslator(&m_longTexts);
        }
        if (desktop == Desktop::translated) {
            if (!m_catalogue.load(catalogue, CATALOGUES)) {
                qFatal("no catalogue %s", qPrintable(catalogue));
            }
            QCoreApplication::installTranslator(&m_catalogue);
        }
        if (desktop == Desktop::dark) {
            QApplication::setPalette(darkPalette());
        }
    }
    ~DesktopSetup()
    {
        QCoreApplication::removeTranslator(&m_longTexts);
        QCoreApplication::removeTranslator(&m_catalogue);
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
    }
    DesktopSetup(const DesktopSetup&) = delete;
    DesktopSetup& operator=(const DesktopSetup&) = delete;

    Desktop desktop;

private:
    QFont m_font;
    QPalette m_palette;
    LongTexts m_longTexts;
    QTranslator m_catalogue;
};

/// A window with two pages and one of each defect.
class BadWindow : public QDialog
{
public:
    BadWindow()
    {
        auto tabs = new QTabWidget;
        auto layout = new QVBoxLayout(this);
        layout->addWidget(tabs);
        auto page = new QWidget;
        tabs->addTab(new QWidget, "Good");
        tabs->addTab(page, "Bad");

        auto first = new QLineEdit(page);
        first->setObjectName("first");
        auto second = new QPushButton("&Two", page);
        auto third = new QPushButton("&Too", page);
        auto label = new QLabel("Ahead of the field", page);
        label->setObjectName("label");
        label->setGeometry(10, 10, 120, 20);
        first->setGeometry(140, 10, 100, 30);
        second->setGeometry(10, 60, 90, 30);
        third->setGeometry(110, 60, 90, 30);
        QWidget::setTabOrder(third, first);
        QWidget::setTabOrder(first, second);

        auto cut = new QLabel("A text that is much longer than its place", page);
        cut->setObjectName("cut");
        cut->setGeometry(10, 100, 60, 20);
        auto faint = new QLabel("faint", page);
        faint->setObjectName("faint");
        faint->setGeometry(110, 100, 100, 30);
        faint->setStyleSheet("color: #808080; background: #a0a0a0");
        auto picture = new QLabel(page);
        picture->setObjectName("picture");
        picture->setAccessibleName("A picture that is missing");
        picture->setGeometry(10, 130, 60, 20);
        auto box = new QComboBox(page);
        box->setObjectName("box");
        box->setGeometry(10, 160, 60, 30);
        auto group = new QGroupBox("A title that is much longer than its place", page);
        group->setObjectName("group");
        group->setGeometry(110, 140, 60, 40);
        auto covered = new QCheckBox("covered", page);
        covered->setObjectName("covered");
        covered->setGeometry(10, 190, 200, 30);
        auto covering = new QLabel("covering", page);
        covering->setObjectName("covering");
        covering->setGeometry(100, 200, 100, 30);
        box->addItem("An item that is much longer than its place");
        page->setMinimumSize(300, 240);
    }
};

} // namespace

class DialogFeelTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void checksDetectEveryDefect();
    void everyFormIsAmongAllWindows();
    void keyboard_data();
    void keyboard();
    void enterAcceptsAndEscapeRejects_data();
    void enterAcceptsAndEscapeRejects();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void textsHaveContrast_data();
    void textsHaveContrast();
    void framesHaveContrast_data();
    void framesHaveContrast();
    void picturesAreLoadedAndSharp_data();
    void picturesAreLoadedAndSharp();

private:
    static void rows(bool dialogsOnly);
    static void rowsOfDesktops(std::initializer_list<std::pair<const char*, Desktop>> desktops);
    /// Adds a row for each window in each language of the program.
    static void addRowsOfLanguages();
    /// Shows the window of the row and fails if `findWrong` returns any findings.
    static void look(const std::function<QStringList(QWidget&)>& findWrong);
    /// The same with the desktop of the row: light, dark, or turned dark while the window is open.
    static void lookInItsColours(QStringList (*findWrong)(QWidget&));
    static void rowsOfColours();

    Installation m_installation;
    udsim::Room m_room{scenarioOfMachines()};
};

void DialogFeelTest::initTestCase()
{
    std::string error;
    QVERIFY2(m_room.start(error), error.c_str());
    QApplication::setFont(QFont("DejaVu Sans", plainPoints));
}

void DialogFeelTest::rows(bool dialogsOnly)
{
    QTest::addColumn<int>("window");
    const std::vector<AppWindow> windows = allWindows();
    for (size_t i = 0; i < windows.size(); ++i) {
        if (windows[i].isDialog || !dialogsOnly) {
            QTest::newRow(windows[i].name) << static_cast<int>(i);
        }
    }
}

void DialogFeelTest::rowsOfDesktops(std::initializer_list<std::pair<const char*, Desktop>> desktops)
{
    QTest::addColumn<int>("window");
    QTest::addColumn<int>("desktopNumber");
    QTest::addColumn<QString>("catalogue");
    const std::vector<AppWindow> windows = allWindows();
    for (const auto& [name, desktop] : desktops) {
        for (size_t i = 0; i < windows.size(); ++i) {
            QTest::addRow("%s, %s", windows[i].name, name)
                << static_cast<int>(i) << static_cast<int>(desktop) << QString();
        }
    }
}

void DialogFeelTest::addRowsOfLanguages()
{
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        // Fonts and widgets scale alike: a text that fits at one scale fits at all, as the English rows show.
        return;
    }
    const std::vector<AppWindow> windows = allWindows();
    const QStringList catalogues = QDir(CATALOGUES).entryList({"PubSetupQt_*.qm"});
    QVERIFY(!catalogues.isEmpty());
    for (const QString& catalogue : catalogues) {
        for (size_t i = 0; i < windows.size(); ++i) {
            QTest::addRow("%s, %s", windows[i].name, qPrintable(QFileInfo(catalogue).baseName()))
                << static_cast<int>(i) << static_cast<int>(Desktop::translated) << catalogue;
        }
    }
}

void DialogFeelTest::look(const std::function<QStringList(QWidget&)>& findWrong)
{
    QFETCH(int, window);
    bool visited = false;
    QStringList findings;
    allWindows()[static_cast<size_t>(window)].show([&](QWidget& shown) {
        visited = true;
        findings = findWrong(shown);
    });
    QVERIFY2(visited, "the window did not open");
    QVERIFY2(findings.isEmpty(), qPrintable("\n  " + findings.join("\n  ")));
}

void DialogFeelTest::checksDetectEveryDefect()
{
    BadWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto finds = [](const QStringList& findings, const char* what) {
        return !findings.filter(what).isEmpty();
    };
    QVERIFY(finds(badFirstFocus(window), "tabs"));
    QVERIFY(finds(namelessParts(window), "first"));
    QVERIFY(finds(labelsThatLeadNowhere(window), "first is not the buddy of label"));
    QVERIFY(finds(mnemonicClashes(window), "&Too"));
    QVERIFY(finds(tabOrderBreaks(window), "back from"));
    QVERIFY(finds(badDefaultButton(window), "default"));
    for (const char* cut : {"cut needs", "box: ", "group: ", "covering overlaps covered"}) {
        QVERIFY2(finds(cutTexts(window), cut), cut);
    }
    QVERIFY(finds(missingPictures(window), "picture"));
    QVERIFY(finds(missingPictures(window), "the window has no icon"));
    QVERIFY(finds(tooLarge(window, window.size() - QSize(1, 0)), "the window is"));
    for (const char* frame : {"frame of first ", "frame of box ", "frame of covered "}) {
        QVERIFY2(finds(faintFrames(window), frame), frame);
    }
    QVERIFY(!finds(faintKeyboardFrames(window), "frame of"));
    QPalette dim = QApplication::palette();
    dim.setColor(QPalette::Highlight, dim.color(QPalette::Window));
    window.setPalette(dim);
    QVERIFY(finds(faintKeyboardFrames(window), "frame of covered "));
    const QStringList faint = faintTexts(window);
    QVERIFY(finds(faint, "faint"));
    QCOMPARE(faint.size(), 1);
}

void DialogFeelTest::everyFormIsAmongAllWindows()
{
    QSet<QString> seen;
    for (const AppWindow& window : allWindows()) {
        window.show([&seen](QWidget& shown) { seen << shown.objectName(); });
    }
    const QFileInfoList forms = QDir(FORMS).entryInfoList({"*.ui"});
    QVERIFY(!forms.isEmpty());
    for (const QFileInfo& form : forms) {
        QFile file(form.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        while (!xml.atEnd() && !(xml.isStartElement() && xml.name() == QLatin1String("widget"))) {
            xml.readNext();
        }
        const QString name = xml.attributes().value("name").toString();
        QVERIFY2(seen.contains(name), qPrintable(form.fileName() + ": no window \"" + name + "\" was shown"));
    }
}

void DialogFeelTest::keyboard_data()
{
    rowsOfDesktops({{"plain", Desktop::plain}});
    addRowsOfLanguages();
}

void DialogFeelTest::keyboard()
{
    const DesktopSetup setup;
    look([](QWidget& window) {
        if (window.inherits("QProgressDialog")) {
            return QStringList(); // it handles no keys
        }
        QStringList findings = badFirstFocus(window);
        findings << namelessParts(window) << labelsThatLeadNowhere(window) << mnemonicClashes(window)
                 << tabOrderBreaks(window);
        return qobject_cast<QDialog*>(&window) ? findings + badDefaultButton(window) : findings;
    });
}

void DialogFeelTest::enterAcceptsAndEscapeRejects_data()
{
    rows(true);
}

void DialogFeelTest::enterAcceptsAndEscapeRejects()
{
    for (const auto& [key, result] :
         {std::pair(Qt::Key_Return, QDialog::Accepted), std::pair(Qt::Key_Enter, QDialog::Accepted),
          std::pair(Qt::Key_Escape, QDialog::Rejected)}) {
        look([pressed = key, expected = result](QWidget& window) {
            int ended = -1;
            connect(qobject_cast<QDialog*>(&window), &QDialog::finished, [&ended](int how) { ended = how; });
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, pressed);
            return ended == expected ? QStringList()
                                     : QStringList{QString("key %1: %2").arg(pressed).arg(ended)};
        });
    }
}

void DialogFeelTest::nothingIsClipped_data()
{
    rowsOfDesktops(
        {{"plain", Desktop::plain}, {"large font", Desktop::largeFont}, {"long texts", Desktop::longTexts}});
    addRowsOfLanguages();
}

void DialogFeelTest::nothingIsClipped()
{
    const DesktopSetup setup;
    const bool shipped = setup.desktop == Desktop::plain || setup.desktop == Desktop::translated;
    look([shipped](QWidget& window) {
        const QStringList findings = cutTexts(window) + tooLarge(window, shipped ? smallScreen : screen);
        return shipped ? findings + cutColumnHeads(window) : findings;
    });
}

void DialogFeelTest::rowsOfColours()
{
    rowsOfDesktops({{"light", Desktop::plain}, {"dark", Desktop::dark}, {"turned dark", Desktop::turnsDark}});
}

void DialogFeelTest::lookInItsColours(QStringList (*findWrong)(QWidget&))
{
    const DesktopSetup setup;
    const bool turnsDark = setup.desktop == Desktop::turnsDark;
    look([turnsDark, findWrong](QWidget& window) {
        if (turnsDark) {
            QApplication::setPalette(darkPalette());
            QCoreApplication::processEvents();
        }
        return findWrong(window);
    });
}

void DialogFeelTest::textsHaveContrast_data()
{
    rowsOfColours();
}

void DialogFeelTest::textsHaveContrast()
{
    lookInItsColours(faintTexts);
}

void DialogFeelTest::framesHaveContrast_data()
{
    rowsOfColours();
}

void DialogFeelTest::framesHaveContrast()
{
    lookInItsColours([](QWidget& window) {
        for (QGroupBox* group : window.findChildren<QGroupBox*>()) {
            group->setEnabled(true); // includes groups that settings disable
        }
        return faintFrames(window) + faintKeyboardFrames(window);
    });
}

void DialogFeelTest::picturesAreLoadedAndSharp_data()
{
    rows(false);
}

void DialogFeelTest::picturesAreLoadedAndSharp()
{
    look(missingPictures);
}

int main(int argc, char** argv)
{
    enableScreenScaling(); // as the program does
    QApplication app(argc, argv);
    QTEST_SET_MAIN_SOURCE_PATH
    DialogFeelTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "DialogFeelTest.moc"
