// From a second copy of the program to the window of the first.
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <future>

#include "app/hand_over_queue.h"
#include "app/single_instance.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

QString ServerName() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           "/orbelle-main-window";
}

class SingleInstanceTest : public ::testing::Test {
protected:
    SingleInstanceTest() {
        QObject::connect(&first, &SingleInstance::Received,
                         [this](const QByteArray& text) { received.push_back(text); });
    }

    // As another process would.
    static HandOverEnd HandOver(const QByteArray& text) {
        auto end = std::async(std::launch::async, SingleInstance::HandOver, text);
        EXPECT_TRUE(WaitUntil(
            [&] { return end.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return end.get();
    }
    static std::unique_ptr<QLocalSocket> Connect() {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(ServerName());
        EXPECT_TRUE(socket->waitForConnected());
        return socket;
    }

    SingleInstance first;
    std::vector<QByteArray> received;
};

TEST_F(SingleInstanceTest, TakesWhatIsHandedOverInOrderAndAnswers) {
    EXPECT_EQ(HandOver("\"/a\""), HandOverEnd::Nobody);
    ASSERT_TRUE(first.Listen());
    const QByteArray bytes("\"/b\xFF \n\"", 7), longest(1 << 16, 'x');
    for (const QByteArray& text : {QByteArray("\"/a\""), bytes, QByteArray(), longest})
        EXPECT_EQ(HandOver(text), HandOverEnd::Taken);
    EXPECT_THAT(received, ElementsAre("\"/a\"", bytes, "", longest));
    EXPECT_EQ(HandOver(longest + 'x'), HandOverEnd::NoAnswer);
    EXPECT_EQ(received.size(), 4u);
}

TEST_F(SingleInstanceTest, APeerThatTalksNonsenseOrNothingDoesNoHarm) {
    ASSERT_TRUE(first.Listen());
    const QByteArray nonsense[] = {
        "",
        "\"/a\"",
        "Orbelle hand-over 2 4\n\"/a\"",
        "Orbelle hand-over 1 -4\n\"/a\"",
        "Orbelle hand-over 1 four\n\"/a\"",
        "Orbelle hand-over 1 99999999999\n\"/a\"",
        "Orbelle hand-over 1 5\n\"/a\"",
        QByteArray("Orbelle hand-over 1 ") + QByteArray(200, '0') + "4\n\"/a\"",
        QByteArray(1 << 20, 'x'),
    };
    std::vector<std::unique_ptr<QLocalSocket>> peers;
    for (int i = 0; i < 5; ++i) {
        for (const QByteArray& text : nonsense) {
            peers.push_back(Connect());
            peers.back()->write(text);
        }
    }
    EXPECT_EQ(HandOver("\"/a\""), HandOverEnd::Taken);
    // None is kept for long.
    EXPECT_TRUE(WaitUntil([&] {
        return std::ranges::all_of(peers, [](const auto& peer) {
            return peer->state() == QLocalSocket::UnconnectedState;
        });
    }));
    EXPECT_THAT(received, ElementsAre("\"/a\""));
}

TEST_F(SingleInstanceTest, WhoGetsNoAnswerGoesAndIsNotOpenedTwice) {
    ASSERT_TRUE(first.Listen());
    QElapsedTimer time;
    time.start();
    // In this thread: the first copy hangs meanwhile.
    EXPECT_EQ(SingleInstance::HandOver("\"/a\""), HandOverEnd::NoAnswer);
    EXPECT_LT(time.elapsed(), 3000);
    EXPECT_EQ(HandOver("\"/b\""), HandOverEnd::Taken);
    EXPECT_THAT(received, ElementsAre("\"/b\""));
}

TEST_F(SingleInstanceTest, ANameIsTakenFromTheDeadOnly) {
    // A copy that crashed: nobody listens.
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ServerName().toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
    const int crashed = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(crashed, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(crashed);
    EXPECT_EQ(HandOver("\"/a\""), HandOverEnd::Nobody);
    ASSERT_TRUE(first.Listen());

    auto second = std::make_unique<SingleInstance>();
    EXPECT_FALSE(second->Listen());
    second.reset();
    EXPECT_EQ(HandOver("\"/b\""), HandOverEnd::Taken) << "the first has kept it";
}

struct Window {
    bool IsFree = false;
    std::vector<QByteArray> Opened;
};

TEST(HandOverQueueTest, OpensInOrderOneAtATimeWhenTheWindowIsFree) {
    HandOverQueue queue;
    Window window;
    queue.Add("1");
    queue.Start([&] { return window.IsFree; },
                [&](const QByteArray& text) {
                    window.Opened.push_back(text + '(');
                    // It asks something, and the answer takes its time.
                    for (int i = 0; i < 100; ++i) {
                        QApplication::processEvents();
                        QThread::msleep(1);
                    }
                    window.Opened.push_back(text + ')');
                });
    queue.Add("2");
    for (int i = 0; i < 100; ++i) {
        QApplication::processEvents();
        QThread::msleep(1);
    }
    EXPECT_THAT(window.Opened, IsEmpty());
    EXPECT_THAT(queue.Waiting(), ElementsAre("1", "2"));
    window.IsFree = true;
    ASSERT_TRUE(WaitUntil([&] { return queue.Waiting().isEmpty(); }));
    queue.Add("3");
    ASSERT_TRUE(WaitUntil([&] { return window.Opened.size() == 6; }));
    EXPECT_THAT(window.Opened, ElementsAre("1(", "1)", "2(", "2)", "3(", "3)"));
}

}  // namespace
}  // namespace orbelle::app
