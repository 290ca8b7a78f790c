// Unsaved work in the real program, which is killed at any moment. ORBELLE_KILL_ROUNDS sets how
// often.
#include <csignal>
#include <random>

#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr QRgb kRed = 0xFFFF0000;

class KilledWindowTest : public RealWindowTest {
protected:
    struct Stroke {
        QPoint From, To;
    };

    Stroke RandomStroke() {
        const auto place = [this] {
            return page + QPoint(std::uniform_int_distribution(5, kPictureSide - 6)(random_),
                                 std::uniform_int_distribution(5, kPictureSide - 6)(random_));
        };
        return {place(), place()};
    }
    int RandomBelow(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    void Draw(const Stroke& stroke) {
        Drag(stroke.From, stroke.To);
        MoveTo({0, 0});
    }
    // Begins to draw and does not wait for it.
    void StartDrawing(QProcess& hand, const Stroke& stroke) const {
        const auto number = [](int n) { return QString::number(n); };
        Start(hand, "xdotool",
              {"mousemove", number(stroke.From.x()), number(stroke.From.y()), "mousedown", "1",
               "mousemove", number(stroke.To.x()), number(stroke.To.y()), "mouseup", "1",
               "mousemove", "0", "0"});
        hand.waitForStarted();
    }

    enum class End { Kill, Terminate, HangUp, NoDisplay };
    void EndProgram(End end) {
        const auto process = static_cast<pid_t>(program.processId());
        switch (end) {
            case End::Kill:
                ::kill(process, SIGKILL);
                break;
            case End::Terminate:
                ::kill(process, SIGTERM);
                break;
            case End::HangUp:
                ::kill(process, SIGHUP);
                break;
            case End::NoDisplay:
                KillDisplay();
                break;
        }
        ASSERT_TRUE(WaitUntil([&] { return program.state() == QProcess::NotRunning; }));
        if (end == End::NoDisplay)
            StartDisplay();
    }

    bool StartAndRestore() {
        StartProgram({});
        if (!FocusWindow("^Restore Work$"))
            return false;
        Press({"Return"});
        if (!FocusMain())
            return false;
        Press({"b"});
        WaitUntilIdle();
        return true;
    }

private:
    std::mt19937 random_{2026};
};

TEST_F(KilledWindowTest, LosesAtMostTheStepUnderWay) {
    const int rounds = qEnvironmentVariableIsSet("ORBELLE_KILL_ROUNDS")
                           ? qEnvironmentVariableIntValue("ORBELLE_KILL_ROUNDS")
                           : 4;
    ASSERT_TRUE(StartWith());
    Press({"b"});
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        for (int step = 0; step <= RandomBelow(3); ++step)
            Draw(RandomStroke());
        const QImage before = Scene();
        const Stroke last = RandomStroke();
        QProcess hand;
        StartDrawing(hand, last);
        QThread::msleep(static_cast<unsigned long>(RandomBelow(80)));
        EndProgram(static_cast<End>(round % 4));
        hand.waitForFinished();

        ASSERT_TRUE(StartAndRestore());
        const QImage restored = Scene();
        if (restored != before) {
            // Then it's the whole step: drawn once more it changes nothing.
            QProcess again;
            StartDrawing(again, last);
            again.waitForFinished();
            WaitUntilIdle();
            ASSERT_EQ(Scene(), restored);
            ASSERT_NE(restored, before);
        }
    }
    // Nothing is left when the user has decided.
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+n"});
    EXPECT_TRUE(EndsWell(program));
    EXPECT_TRUE(std::filesystem::is_empty(state / "orbelle" / "journals"));
}

TEST_F(KilledWindowTest, KeepsForLaterAndDiscards) {
    ASSERT_TRUE(StartWith());
    Press({"b"});
    Draw(RandomStroke());
    EndProgram(End::Kill);
    const auto startAndPress = [this](const QStringList& keys) {
        StartProgram({});
        ASSERT_TRUE(FocusWindow("^Restore Work$"));
        Press(keys);
    };
    startAndPress({"Escape"});
    ASSERT_TRUE(FocusWindow("^Varnel Orbelle$"));
    EXPECT_EQ(Count(kRed), 0);
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program));

    startAndPress({"alt+d"});
    ASSERT_TRUE(FocusWindow("^Discard$"));
    Press({"Tab", "Return"});
    ASSERT_TRUE(FocusWindow("^Varnel Orbelle$"));
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program));
    EXPECT_TRUE(std::filesystem::is_empty(state / "orbelle" / "journals"));
}

}  // namespace
}  // namespace orbelle::app
