// Any text may be typed or pasted into the registration dialog. The new file holds each text on one line. The
// files of other publishers stay unchanged, also when the new publisher is polled.
#include "AddPublisherFixture.h"

#include "MyRunnable.h"
#include "PubSetup.h"

#include <QClipboard>

#include <algorithm>

namespace {

constexpr int megabyte = 1 << 20;

} // namespace

class AddPublisherInputTest : public AddPublisherFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesInAnyScript_data();
    void namesInAnyScript();
    void namesAreComparedAsTheyReadBack();
    void pastedTexts_data();
    void pastedTexts();
    void namesWithFileSyntax_data();
    void namesWithFileSyntax();
    void hugeTexts_data();
    void hugeTexts();
    void hugeTextsOfARegisteredPublisher();
    void randomTexts();

private:
    static void paste(QLineEdit* field, const QString& text);
    /// Polls all publishers once. Returns the names that the list then shows for the added publishers, joined
    /// by " and "; an error text if the poll does not end.
    QString polledName();

    std::map<std::string, std::string> m_before;
};

void AddPublisherInputTest::init()
{
    startAnew();
    m_installation.addLocal("local", "Neighbour");
    Installation::addNetwork("network", "Second neighbour", silentAddress);
    m_before = files();
    open();
}

void AddPublisherInputTest::cleanup()
{
    for (const auto& [name, text] : m_before) {
        QVERIFY2(files()[name] == text, name.c_str());
    }
    m_dialog.reset();
    m_room->stop();
}

void AddPublisherInputTest::paste(QLineEdit* field, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    field->setFocus();
    field->selectAll();
    field->paste();
}

QString AddPublisherInputTest::polledName()
{
    // The window starts a poll at once. It must stay open until the poll ends: closing cancels queries that
    // have not begun.
    PubSetup asking(nullptr);
    if (!waitForTasks(20000)) {
        return "the poll does not end";
    }
    const PubSetup window(nullptr); // a row keeps its old name: only a new list shows the new one
    QStringList names;
    for (int i = 0; i < window.treePublisherList->topLevelItemCount(); ++i) {
        const QString key = window.treePublisherList->topLevelItem(i)->data(0, Qt::UserRole).toString();
        if (key != "local" && key != "network") {
            names << window.treePublisherList->topLevelItem(i)->text(0);
        }
    }
    return names.join(" and ");
}

void AddPublisherInputTest::namesInAnyScript_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown"); // reading keeps printable ASCII only
    const struct
    {
        const char *row, *name, *shown;
    } table[] = {
        {"German", "Büro 3", "Bro 3"},
        {"Japanese", "東京スタジオ 1", "1"},
        {"Russian", "Студия", ""},
        {"Arabic", "استوديو 2", "2"},
        {"Hebrew", "אולפן", ""},
        {"Hindi", "स्टूडियो A", "A"},
        {"Korean", "스튜디오-B", "-B"},
        {"Thai", "สตูดิโอ", ""},
        {"surrogate pairs", "Studio 💿𝄞", "Studio"},
        {"combining mark", "Bu\u0308ro", "Buro"},
        {"direction mark", "a\u202Eb", "ab"},
        {"line separator", "a\u2028b", "ab"},
    };
    for (const auto& row : table) {
        QTest::newRow(row.row) << QString::fromUtf8(row.name) << QString::fromUtf8(row.shown);
    }
}

void AddPublisherInputTest::namesInAnyScript()
{
    QFETCH(QString, name);
    QCOMPARE(add(server, name), QString());
    QVERIFY(wasAdded());
    QCOMPARE(newFile(m_before).second, newText(server, name.toStdString()));
    QTEST(polledName(), "shown");
    open();
    QCOMPARE(m_dialog->textPublisherName->text(), "RT-300N 1");
}

void AddPublisherInputTest::namesAreComparedAsTheyReadBack()
{
    QCOMPARE(add(server, QString::fromUtf8("Büro")), QString());
    open();
    QCOMPARE(add(secondServer, "Bro"), sameName); // as the stored name reads back
    QCOMPARE(add(secondServer, QString::fromUtf8("Büro")), QString());
    QVERIFY(wasAdded());
    QCOMPARE(files().size(), m_before.size() + 2);
}

void AddPublisherInputTest::pastedTexts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("storedName");
    QTest::addColumn<QString>("storedHost");
    const QString host = server;
    QTest::newRow("trailing line ends") << "New\r\n" << host + "\n" << "New" << host;
    QTest::newRow("two lines") << "New\nStudio" << host << "NewStudio" << host;
    QTest::newRow("key") << "New\nPublisherConnectionType=0" << host << "NewPublisherConnectionType=0"
                         << host;
    QTest::newRow("section") << "New\n[Common]\nPublisherName=Other" << host
                             << "New[Common]PublisherName=Other" << host;
    QTest::newRow("host in two lines") << "New"
                                       << "127.0.\n0.11"
                                       << "New" << host;
    QTest::newRow("only line ends") << "\n\r\n" << host << "NotSet" << host;
    QTest::newRow("NUL") << QString::fromLatin1("New\0PublisherURL=other\0\0x", 25)
                         << QString::fromLatin1("127.0.0\0.11\0", 12) << "NewPublisherURL=otherx" << host;
    QTest::newRow("tabs") << "\tNew\t1" << host << "\tNew\t1" << host;
    QTest::newRow("path") << "C:\\New\\"
                          << "\\\\x\\" + host << "C:\\New\\"
                          << "\\\\x\\" + host;
}

void AddPublisherInputTest::pastedTexts()
{
    QFETCH(QString, name);
    QFETCH(QString, host);
    QFETCH(QString, storedName);
    QFETCH(QString, storedHost);
    paste(m_dialog->textHostName, host);
    paste(m_dialog->textPublisherName, name);
    QCOMPARE(m_dialog->textPublisherName->text(), name); // the field keeps the whole text
    QCOMPARE(ok(), QString());
    QVERIFY(wasAdded());
    QCOMPARE(newFile(m_before).second, newText(storedHost.toStdString(), storedName.toStdString()));
    polledName();
}

void AddPublisherInputTest::namesWithFileSyntax_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    const struct
    {
        const char *name, *shown;
    } table[] = {
        {"[Common]", "[Common]"},
        {"[COMMON]", "[COMMON]"},
        // The poll writes the model where the section and the key first appear.
        {"[COMMON]NPType=9", "[COMMON]NPType=2"},
        {"[", "["},
        {"]", "]"},
        {"=", ""},
        {"==x", "=x"},
        {"a=b", "a=b"},
        {";", ""},
        {"a;b", "a"},
        {"NPType=3", "NPType=3"},
        {"PublisherURL=other", "PublisherURL=other"},
        {"%s%n%1", "%s%n%1"},
        {"{ARPUB20260101_1}", "{ARPUB20260101_1}"},
        {"../../registry", "../../registry"},
    };
    for (const auto& row : table) {
        QTest::newRow(row.name) << row.name << row.shown;
    }
}

void AddPublisherInputTest::namesWithFileSyntax()
{
    QFETCH(QString, name);
    QCOMPARE(add(server, name), QString());
    QVERIFY(wasAdded());
    const auto [file, text] = newFile(m_before);
    QCOMPARE(text, newText(server, name.toStdString()));
    QTEST(polledName(), "shown");
    // The poll has written the model into the file, and the host is intact.
    const std::string polled = files()[file];
    QVERIFY2(polled.find("\nPublisherURL=127.0.0.11\n") != std::string::npos, polled.c_str());
    QVERIFY2(polled.find("NPType=2\n") != std::string::npos, polled.c_str());
    QCOMPARE(files().size(), m_before.size() + 1);
}

void AddPublisherInputTest::hugeTexts_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("letters") << "x";
    QTest::newRow("lines") << "[Common]\nPublisherName=x\n";
    QTest::newRow("file syntax") << "[]=;\\ ";
    QTest::newRow("NUL") << QString::fromLatin1("x\0", 2);
    QTest::newRow("formats") << "%s%n";
    QTest::newRow("Japanese") << QString::fromUtf8("東京");
}

void AddPublisherInputTest::hugeTexts()
{
    QFETCH(QString, piece);
    const QString endless = piece.repeated(megabyte / piece.size());
    paste(m_dialog->textHostName, endless);
    paste(m_dialog->textPublisherName, endless);
    QCOMPARE(m_dialog->textPublisherName->text().size(), endless.size());
    QCOMPARE(ok(), notFound);
    QCOMPARE(m_dialog->textHostName->text().size(), endless.size());
    QVERIFY(files() == m_before);

    const QString host = endless + "\\" + server;
    paste(m_dialog->textHostName, host);
    QCOMPARE(ok(), QString());
    QVERIFY(wasAdded());
    QString line = endless;
    line.remove('\n').remove(QChar('\0'));
    const std::string stored = line.toStdString();
    QVERIFY(newFile(m_before).second == newText(stored + "\\" + server, stored));

    const QString shown = polledName();
    QVERIFY2(shown.size() <= 255, qPrintable(shown));
    open();
    QCOMPARE(add(secondServer, "New"), QString());
    QVERIFY(wasAdded());
}

void AddPublisherInputTest::hugeTextsOfARegisteredPublisher()
{
    const std::string endless(megabyte, 'x');
    Installation::addNetwork("endless", endless, endless);
    open();
    QCOMPARE(add(server, "New"), QString());
    QVERIFY(wasAdded());
}

void AddPublisherInputTest::randomTexts()
{
    uint32_t state = 1; // fixed seed: each run uses the same texts
    const auto next = [&state](uint32_t bound) {
        state = state * 1664525 + 1013904223;
        return (state >> 8) % bound;
    };
    const char ascii[] = "[]=;\\\n\r\t \"'%{}_./abCOMMON\0\x01\x7f";
    const QString signs =
        QString::fromLatin1(ascii, sizeof ascii - 1) + QString::fromUtf8("ü東💿\u2028\uFFFD") + QChar(0xD800);
    const auto text = [&] {
        QString made;
        for (uint32_t length = next(60); length > 0; --length) {
            made += signs[static_cast<int>(next(static_cast<uint32_t>(signs.size())))];
        }
        return made;
    };
    for (int i = 0; i < 100; ++i) {
        const QString name = text(), host = text();
        open();
        paste(m_dialog->textHostName, host + "\\" + server);
        paste(m_dialog->textPublisherName, name);
        const auto before = files();
        if (!ok().isEmpty()) {
            QVERIFY(files() == before);
            continue; // the name or the host reads back as one that is registered
        }
        QVERIFY(wasAdded());
        const std::string written = newFile(before).second;
        QCOMPARE(std::count(written.begin(), written.end(), '\n'), 5);
        QCOMPARE(written.find('\0'), std::string::npos);
        QVERIFY(written.ends_with(std::string("\\") + server + "\n"));
        if (i % 10 == 9) {
            polledName();
        }
    }
    QVERIFY(files().size() > 50);
}

QTEST_MAIN(AddPublisherInputTest)
#include "AddPublisherInputTest.moc"
