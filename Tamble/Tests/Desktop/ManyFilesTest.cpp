#include <QElapsedTimer>
#include <QTimer>
#include <iostream>
#include <set>

#include "WindowTest.h"
#include <gmock/gmock.h>

namespace tamble {
namespace {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

constexpr int fileCount = 10'000;

/// How long the window could do nothing at most.
class Pulse {
  public:
    Pulse() {
        clock_.start();
        QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
        timer_.start(5);
    }
    void tell(const char* step) {
        std::cout << step << ": at most " << longest_ << " ms without an answer\n";
        longest_ = 0;
    }

  private:
    void beat() { longest_ = std::max(longest_, clock_.restart()); }

    QElapsedTimer clock_;
    QTimer timer_;
    qint64 longest_ = 0;
};

class ManyFiles : public WindowTest {
  protected:
    ManyFiles() {
        const auto first = addPhoto("Camera/00000.jpg", 8, 8);
        for (int i = 1; i < fileCount; ++i) {
            auto name = std::to_string(i);
            name.insert(0, 5 - name.size(), '0');
            fs::copy_file(first, folder().files() / "Camera" / (name + ".jpg"));
        }
    }
    QString firstFile() { return app().tool()->files()->index(0).data(FileListModel::name).toString(); }
};

TEST_F(ManyFiles, AreListedSortedAndRemoved) {
    std::ofstream(folder().files() / "Camera/00007.jpg", std::ios::app) << "the largest";
    open();
    Pulse pulse;
    openTool(u"Photos to PDF"_s, folder().files() / "Camera");
    ASSERT_TRUE(waitFor([this] { return isShown(u"00003.jpg"_s); }));
    EXPECT_EQ(app().tool()->files()->count(), fileCount);
    pulse.tell("dropped and listed");

    click(u"As dropped"_s);
    click(u"By size"_s);
    ASSERT_TRUE(waitFor([this] { return firstFile() == u"00007.jpg"_s; }));
    pulse.tell("sorted");
    click(u"00007.jpg"_s);
    click(u"00002.jpg"_s, Qt::ShiftModifier);
    press(Qt::Key_Delete);
    ASSERT_TRUE(waitFor([this] { return app().tool()->files()->count() == fileCount - 4; }));
    EXPECT_EQ(firstFile(), u"00003.jpg"_s);
    pulse.tell("four removed");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_TRUE(waitFor([this] { return app().tool()->files()->count() == 0; }));
    pulse.tell("all removed");
}

TEST_F(ManyFiles, AreRenamedWhileTheWindowFollows) {
    const auto before = namesIn(folder().files() / "Camera");
    open();
    openTool(u"Rename many files"_s, folder().files() / "Camera");
    click(u"New name"_s);
    type("Goa");
    ASSERT_TRUE(
        waitFor([this] { return app().names()->rowCount() == fileCount && app().tool()->canStart(); }));
    click(u"Make renamed copies"_s);
    std::set<QString> shown;
    QObject::connect(app().job(), &JobModel::progressed, app().job(),
                     [&] { shown.insert(app().job()->position() + app().job()->counts()); });
    Pulse pulse;
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    pulse.tell("copied under new names");
    EXPECT_GE(shown.size(), 3U) << "the start, something between, and the end";
    EXPECT_EQ(app().result()->outputs().size(), static_cast<std::size_t>(fileCount));
    click(u"Undo"_s);
    EXPECT_TRUE(waitFor([&] { return namesIn(folder().files() / "Camera") == before; }));
    pulse.tell("undone");
}

}  // namespace
}  // namespace tamble
