#include "Options.h"

#include <QByteArray>

#include <algorithm>
#include <iterator>
#include <utility>

#include <getopt.h>

namespace {

enum Key : int
{
    keyHelp = 'h',
    keyTimeout = 't',
    keyVersion = 'V',
    keyWatch = 'w',
    keyJson = 256, // no short form
    keyMonitor,
    keyMetrics,
    keyNames,
    keyInkWarning,
    keyInkCritical,
    keyDiscsWarning,
    keyDiscsCritical
};

constexpr option longOptions[] = {
    {"help", no_argument, nullptr, keyHelp},
    {"version", no_argument, nullptr, keyVersion},
    {"timeout", required_argument, nullptr, keyTimeout},
    {"watch", optional_argument, nullptr, keyWatch},
    {"json", no_argument, nullptr, keyJson},
    {"monitor", no_argument, nullptr, keyMonitor},
    {"metrics", no_argument, nullptr, keyMetrics},
    {"names", no_argument, nullptr, keyNames},
    {"ink-warning", required_argument, nullptr, keyInkWarning},
    {"ink-critical", required_argument, nullptr, keyInkCritical},
    {"discs-warning", required_argument, nullptr, keyDiscsWarning},
    {"discs-critical", required_argument, nullptr, keyDiscsCritical},
    {nullptr, 0, nullptr, 0},
};

constexpr char shortOptions[] = ":ht:Vw::";
constexpr double leastSeconds = 0.1;
constexpr double mostSeconds = 86400;

std::optional<std::chrono::milliseconds> seconds(const QString& text)
{
    bool valid = false;
    const double value = text.toDouble(&valid);
    const bool inRange = value >= leastSeconds && value <= mostSeconds; // false for "nan"
    if (!valid || !inRange) {
        return std::nullopt;
    }
    return std::chrono::milliseconds(static_cast<long>(value * 1000));
}

class Parser
{
public:
    Parser(int argc, char** argv) : m_argc(argc), m_argv(argv) {}

    Options parse()
    {
        ::opterr = 0;
        ::optind = 0; // starts anew, also in a second call
        int key = 0;
        while ((key = ::getopt_long(m_argc, m_argv, shortOptions, longOptions, nullptr)) != -1) {
            take(key);
        }
        for (int i = ::optind; i < m_argc; ++i) {
            m_options.names.emplace_back(m_argv[i]);
        }
        check();
        return std::move(m_options);
    }

private:
    /// Keeps the first error.
    void fail(const QString& error)
    {
        if (m_options.error.isEmpty()) {
            m_options.error = error;
        }
    }

    void choose(Output output, const char* name)
    {
        if (m_chosen != nullptr && m_options.output != output) {
            fail(QStringLiteral("--%1 and --%2 exclude each other")
                     .arg(QLatin1String(m_chosen), QLatin1String(name)));
        }
        // A monitor expects a line and its exit codes for any other mistake, too.
        if (m_options.output != Output::monitor) {
            m_options.output = output;
        }
        m_chosen = name;
    }

    std::optional<std::chrono::milliseconds> time(const char* name, const QString& text)
    {
        const auto value = seconds(text);
        if (!value) {
            fail(QStringLiteral("--%1 takes a number of seconds from 0.1 to 86400, not \"%2\"")
                     .arg(QLatin1String(name), text));
        }
        return value;
    }

    void takeThreshold(std::optional<Threshold>& threshold, const char* name)
    {
        const QString text = QString::fromLocal8Bit(::optarg);
        threshold = Threshold::parse(text);
        if (!threshold) {
            fail(QStringLiteral("--%1 takes a range such as 10 or 10: or 5:20, not \"%2\"")
                     .arg(QLatin1String(name), text));
        }
        m_threshold = name;
    }

    /// The value of --watch may be the next argument, if that is a number.
    void takeWatch()
    {
        QString text = QStringLiteral("5");
        if (::optarg != nullptr) {
            text = QString::fromLocal8Bit(::optarg);
        } else if (::optind < m_argc && seconds(QString::fromLocal8Bit(m_argv[::optind]))) {
            text = QString::fromLocal8Bit(m_argv[::optind++]);
        }
        m_options.watch = time("watch", text).value_or(std::chrono::seconds(5));
    }

    void take(int key)
    {
        switch (key) {
        case keyHelp:
            return choose(Output::help, "help");
        case keyVersion:
            return choose(Output::version, "version");
        case keyJson:
            return choose(Output::json, "json");
        case keyMonitor:
            return choose(Output::monitor, "monitor");
        case keyMetrics:
            return choose(Output::metrics, "metrics");
        case keyNames:
            return choose(Output::names, "names");
        case keyTimeout:
            m_options.timeout = time("timeout", QString::fromLocal8Bit(::optarg)).value_or(m_options.timeout);
            return;
        case keyWatch:
            return takeWatch();
        case keyInkWarning:
            return takeThreshold(m_options.ink.warning, "ink-warning");
        case keyInkCritical:
            return takeThreshold(m_options.ink.critical, "ink-critical");
        case keyDiscsWarning:
            return takeThreshold(m_options.discs.warning, "discs-warning");
        case keyDiscsCritical:
            return takeThreshold(m_options.discs.critical, "discs-critical");
        case ':':
            return fail(QStringLiteral("%1 requires a value").arg(lastArgument()));
        default:
            return refuse();
        }
    }

    /// getopt_long refused an option: `optopt` is 0 for an unknown long one, the key of a long one that takes
    /// no value, or an unknown letter.
    void refuse()
    {
        const auto* known = std::find_if(std::begin(longOptions), std::end(longOptions) - 1,
                                         [](const option& one) { return one.val == ::optopt; });
        if (::optopt == 0) {
            fail(QStringLiteral("unknown option %1").arg(lastArgument()));
        } else if (known != std::end(longOptions) - 1) {
            fail(QStringLiteral("--%1 takes no value").arg(QLatin1String(known->name)));
        } else if (::optopt > 0 && ::optopt < 128) {
            fail(QStringLiteral("unknown option -%1").arg(QLatin1Char(static_cast<char>(::optopt))));
        } else {
            fail(QStringLiteral("unknown option -\\x%1").arg(static_cast<quint8>(::optopt), 0, 16));
        }
    }

    /// The option that lacks a value or is unknown: a letter in a group, or the whole argument.
    QString lastArgument() const
    {
        QString argument = QString::fromLocal8Bit(m_argv[::optind > 0 ? ::optind - 1 : 0]);
        if (::optopt > 0 && ::optopt < 256 && !argument.startsWith(QLatin1String("--"))) {
            return QStringLiteral("-") + QChar(static_cast<ushort>(::optopt));
        }
        return argument;
    }

    void check()
    {
        if (m_threshold != nullptr && m_options.output != Output::monitor) {
            fail(QStringLiteral("--%1 requires --monitor").arg(QLatin1String(m_threshold)));
        }
        if (m_options.watch && m_options.output != Output::text && m_chosen != nullptr) {
            fail(QStringLiteral("--watch and --%1 exclude each other").arg(QLatin1String(m_chosen)));
        }
    }

    const int m_argc;
    char** const m_argv;
    Options m_options;
    const char* m_chosen = nullptr;    ///< the option that chose the output
    const char* m_threshold = nullptr; ///< the last threshold option
};

} // namespace

Options parseOptions(int argc, char** argv)
{
    return Parser(argc, argv).parse();
}

const char* helpText()
{
    return "Usage: ulmar-disc-status [OPTION]... [NAME]...\n"
           "\n"
           "Shows the status of the registered disc publishers, or everything known about those with\n"
           "these names. Changes nothing.\n"
           "\n"
           "  -w, --watch [SECONDS]   redraw every 5 seconds, or as given, until Ctrl-C\n"
           "  -t, --timeout SECONDS   wait this long for each publisher (default: 10)\n"
           "      --json              print one JSON document\n"
           "      --metrics           print OpenMetrics text\n"
           "      --monitor           print one line, and exit, as a monitoring plug-in does\n"
           "      --ink-warning RANGE, --ink-critical RANGE\n"
           "                          thresholds of --monitor for the ink, in percent left\n"
           "      --discs-warning RANGE, --discs-critical RANGE\n"
           "                          thresholds of --monitor for the discs left in input stackers\n"
           "      --names             print the registered names, one per line\n"
           "  -h, --help              print this text\n"
           "  -V, --version           print the version\n"
           "\n"
           "A RANGE alerts outside: 10: alerts below 10, ~:10 above 10, 5:20 below 5 and above 20;\n"
           "@5:20 alerts inside.\n"
           "\n"
           "Exit codes: 0 every publisher answered; 1 a publisher did not answer, or an error of reading\n"
           "or writing; 2 an invalid command line or an unknown name. With --monitor: 0 OK, 1 WARNING,\n"
           "2 CRITICAL, 3 UNKNOWN.\n"
           "\n"
           "The manual page ulmar-disc-status(1) has the details.\n";
}
