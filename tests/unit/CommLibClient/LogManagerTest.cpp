#include "LogManager.h"

#include "SyslogLines.h"

#include <type_traits>

#include <gtest/gtest.h>

static_assert(std::is_base_of_v<INotifyLog, CLogManager>);
static_assert(std::has_virtual_destructor_v<INotifyLog>);
static_assert(sizeof(CLogManager) == sizeof(INotifyLog)); // no fields of its own

TEST(LogManager, LogsEachLineWithItsPriority)
{
    SyslogLines lines;
    CLogManager log;
    log.LOG_ERR("error %d", -14);
    log.LOG_WARN("warning %s %u", "two", 3U);
    log.LOG_INFO("information");
    log.LOG_DEBUG("debug 100%%");
    EXPECT_EQ(lines.Take(), (std::vector<std::string>{"<3>error -14", "<4>warning two 3", "<6>information",
                                                      "<7>debug 100%"}));
}

TEST(LogManager, LogsALongLineCompletely)
{
    SyslogLines lines;
    CLogManager log;
    const std::string text(5000, 'x');
    log.LOG_ERR("\t## trace ## %s", text.c_str());
    EXPECT_EQ(lines.Take(), std::vector<std::string>{"<3>\t## trace ## " + text});
}

TEST(LogManager, PassesANullTextToTheSystem)
{
    SyslogLines lines;
    CLogManager log;
    const char* volatile host = nullptr;
    log.LOG_INFO("%s , GetInkStatus , Start", host);
    EXPECT_EQ(lines.Take(), std::vector<std::string>{"<6>(null) , GetInkStatus , Start"});
}

TEST(LogManager, NotifyDoesNothing)
{
    SyslogLines lines;
    CLogManager log;
    log.Notify("message");
    log.Notify(nullptr);
    EXPECT_EQ(lines.Take(), std::vector<std::string>());
}
