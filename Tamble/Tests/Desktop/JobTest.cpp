#include <QGuiApplication>
#include <QTimer>

#include "WindowTest.h"
#include <gmock/gmock.h>

namespace tamble {
namespace {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

class Job : public WindowTest {
  protected:
    /// So many photos that a job over them can be met in its middle.
    void addManyPhotos() {
        for (int i = 0; i < 150; ++i) addPhoto("Trip/" + std::to_string(i) + ".jpg", 640, 480);
    }
    void startAndMeet() {
        openTool(u"Convert"_s, folder().files() / "Trip");
        start();
        ASSERT_TRUE(waitFor([this] { return app().job()->fraction() > 0; }));
        ASSERT_EQ(screen(), Navigator::Work);
    }
    void expectNothingHappened() {
        EXPECT_EQ(files(), before);
        EXPECT_EQ(app().activity()->count(), 0);
        close();
        for (const auto& item : fs::recursive_directory_iterator(folder().staging()))
            EXPECT_TRUE(item.is_directory() || item.path().extension() == ".lock") << item.path();
    }

    std::map<std::string, std::string> before;
};

TEST_F(Job, FromTheDropToUndo) {
    for (const char* name : {"Trip/a.jpg", "Trip/Sea/b.jpg", "Trip/Sea/c.jpg"}) addPhoto(name);
    folder().write("Trip/notes.txt", "sunny");
    before = files();
    open();
    openTool(u"Convert"_s, folder().files() / "Trip");
    EXPECT_EQ(app().tool()->files()->count(), 3);
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    EXPECT_TRUE(comesUp(app().result()->title()));

    auto after = files();
    for (const char* name : {"Trip/a.webp", "Trip/Sea/b.webp", "Trip/Sea/c.webp"})
        EXPECT_EQ(after.extract(name).mapped().substr(0, 4), "RIFF") << name;
    EXPECT_EQ(after, before) << "the originals are others";

    click(u"Undo"_s);
    ASSERT_TRUE(waitFor([this] { return isShown(u"Undone"_s) && files() == before; }));
    click(u"Start over"_s);
    EXPECT_TRUE(waitForScreen(Navigator::Home));
    EXPECT_TRUE(app().intake()->isEmpty());
}

TEST_F(Job, StoppedInItsMiddleSavesNothing) {
    addManyPhotos();
    before = files();
    open();
    startAndMeet();
    click(u"Cancel"_s);
    ASSERT_TRUE(waitFor([this] { return !app().job()->isRunning(); }));
    EXPECT_TRUE(waitForScreen(Navigator::Tool));
    EXPECT_TRUE(app().tool()->canStart()) << "it can be tried again";
    expectNothingHappened();
}

TEST_F(Job, ClosingTheWindowAsksFirst) {
    addManyPhotos();
    before = files();
    open();
    startAndMeet();
    window().close();
    click(u"Keep working"_s);
    EXPECT_TRUE(app().job()->isRunning());
    EXPECT_TRUE(window().isVisible());
    ASSERT_TRUE(waitFor([this] { return !isShown(u"Keep working"_s); }));

    window().close();
    // The program ends by itself once the job has, which may be at once: it has to run by then.
    QTimer::singleShot(0, [this] { click(u"Quit"_s); });
    QTimer::singleShot(std::chrono::seconds(60), [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QGuiApplication::exec(), 0) << "it did not end by itself";
    EXPECT_FALSE(app().job()->isRunning());
    EXPECT_FALSE(window().isVisible());
    expectNothingHappened();
}

TEST_F(Job, WhatFailedIsNamedAndCanBeTriedAgain) {
    addPhoto("Trip/good.jpg");
    addPhoto("Trip/other.jpg");
    const auto damaged = folder().write("Trip/IMG_1.jpg", "\xFF\xD8\xFF\xE0 nothing more");
    open();
    openTool(u"Convert"_s, folder().files() / "Trip");
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    ASSERT_EQ(app().result()->failures()->count(), 1);
    const auto row = app().result()->failures()->index(0);
    EXPECT_TRUE(comesUp(row.data(RowsModel::detail).toString()));
    EXPECT_EQ(row.data(RowsModel::title).toString(), u"IMG_1.jpg"_s);
    EXPECT_THAT(namesIn(folder().files() / "Trip"), "IMG_1.jpg|good.jpg|good.webp|other.jpg|other.webp");

    fs::copy_file(folder().files() / "Trip/good.jpg", damaged, fs::copy_options::overwrite_existing);
    click(u"Try these again"_s);
    ASSERT_TRUE(waitForScreen(Navigator::Tool));
    EXPECT_EQ(app().tool()->files()->count(), 1);
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    EXPECT_EQ(app().result()->failures()->count(), 0);
    EXPECT_TRUE(fs::exists(folder().files() / "Trip/IMG_1.webp"));
}

TEST_F(Job, TwoHundredFilesAreRenamedAndGetTheirNamesBack) {
    for (int i = 0; i < 200; ++i)
        folder().write("Scans/scan" + std::to_string(i) + ".txt", std::to_string(i));
    before = files();
    open();
    openTool(u"Rename many files"_s, folder().files() / "Scans");
    click(u"Text to look for"_s);
    type("scan");
    click(u"What replaces it"_s);
    type("Page ");
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    const auto after = files();
    EXPECT_EQ(after.size(), before.size());
    EXPECT_TRUE(after.contains("Scans/Page 0.txt")) << after.begin()->first;
    EXPECT_TRUE(after.contains("Scans/Page 199.txt"));
    EXPECT_FALSE(after.contains("Scans/scan0.txt"));
    click(u"Undo"_s);
    EXPECT_TRUE(waitFor([this] { return files() == before; }));
}

}  // namespace
}  // namespace tamble
