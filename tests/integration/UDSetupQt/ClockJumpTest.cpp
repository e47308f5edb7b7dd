// Tests the program while its clocks jump.
#include "JumpingClock.h"
#include "ListedProgram.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr char offsetFile[] = "/tmp/clock";
constexpr time_t hour = 3600;

class ClockJumpTest : public ListedProgram
{
protected:
    void SetUp() override
    {
        ListedProgram::SetUp();
        const int file = ::open(offsetFile, O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        ASSERT_EQ(::ftruncate(file, sizeof(ClockOffsets)), 0);
        void* const memory =
            ::mmap(nullptr, sizeof(ClockOffsets), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        ::close(file);
        ASSERT_NE(memory, MAP_FAILED);
        m_offsets = static_cast<ClockOffsets*>(memory);
        m_environment.insert("JUMPING_CLOCK", offsetFile);
        m_environment.insert("LD_PRELOAD", JUMPING_CLOCK_LIBRARY);
    }

    /// Moves the clocks, changes the state of both publishers, and expects both rows to follow.
    void expectRowsToFollow(time_t wall, time_t boot, const char* what)
    {
        m_offsets->wall = wall;
        m_offsets->boot = boot;
        m_isError = !m_isError;
        Simulator::tell("Studio A", m_isError ? "error 19" : "clear");
        Simulator::tell("Studio C", m_isError ? "error 26" : "clear");
        const QStringList shown = m_isError ? QStringList{"Studio A|RT-300III|-|Error|-|-|-",
                                                          "Studio C|RT-300NII|127.0.0.11|Error|-|-|-"}
                                            : QStringList{"Studio A|RT-300III|-|Ready|0|-|-",
                                                          "Studio C|RT-300NII|127.0.0.11|Ready|0|0|2.0 GB"};
        expectWithinTwoPolls(shown, what);
        EXPECT_NEAR(static_cast<double>(m_clock), static_cast<double>(::time(nullptr) + wall), 60)
            << "the clock of the program did not jump";
    }

    ClockOffsets* m_offsets = nullptr;
    bool m_isError = true;
};

TEST_F(ClockJumpTest, RowsFollowAfterEachJump)
{
    const Simulator simulator("[publisher Studio A]\nid = A\nmodel = RT-300III BD\nerror = 19\n"
                              "[network Studio C]\nid = C\nmodel = RT-300NII\nerror = 26\n");
    start();
    expectRowsToFollow(0, 0, "no jump");
    expectRowsToFollow(hour, 0, "an hour forward");
    expectRowsToFollow(-hour, 0, "two hours back");
    expectRowsToFollow(87600 * hour, 0, "ten years forward");
    expectRowsToFollow(0, 0, "ten years back");
    expectRowsToFollow(8 * hour, 8 * hour, "resumed after eight hours");
    end();
}

} // namespace
