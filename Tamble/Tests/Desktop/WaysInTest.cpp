#include <Tamble/Desktop/App/SingleInstance.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/JobRecovery.h>
#include <Tamble/Model/JobRunner.h>

#include <TambleCore/Jobs/CopyThroughProcessor.h>
#include <TambleCore/Jobs/Journal/JournalFile.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <thread>

#include "WindowTest.h"
#include <gmock/gmock.h>

namespace tamble {
namespace {

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

class WayIn : public WindowTest {
  protected:
    static void copy(const std::vector<fs::path>& items) {
        QList<QUrl> urls;
        for (const auto& item : items) urls << urlOf(item);
        auto data = std::make_unique<QMimeData>();
        data->setUrls(urls);
        QGuiApplication::clipboard()->setMimeData(data.release());
    }
    void findTool(const char* words) {
        press(Qt::Key_K, Qt::ControlModifier);
        ASSERT_TRUE(waitFor([this] { return isShown(u"What would you like to do?"_s); }));
        type(words);
        ASSERT_TRUE(waitFor([this] { return app().search()->tools()->count() > 0; }));
        press(Qt::Key_Return);
    }
};

TEST_F(WayIn, AWholeJobByTheKeyboard) {
    addPhoto("a.jpg");
    addPhoto("b.jpg");
    const auto before = files();
    open();
    copy({folder().files() / "a.jpg", folder().files() / "b.jpg"});
    press(Qt::Key_V, Qt::ControlModifier);
    ASSERT_TRUE(waitForScreen(Navigator::Drop));
    findTool("webp");
    ASSERT_TRUE(waitForScreen(Navigator::Tool));
    EXPECT_EQ(app().tool()->toolID(), u"image.convert"_s);
    ASSERT_TRUE(tabTo(u"Next to each original"_s));
    press(Qt::Key_Space);
    EXPECT_EQ(app().tool()->save()->mode(), SaveModel::NextToOriginal);
    ASSERT_TRUE(tabTo(app().tool()->startText()));
    press(Qt::Key_Space);
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    EXPECT_EQ(namesIn(folder().files()), "a.jpg|a.webp|b.jpg|b.webp");
    ASSERT_TRUE(tabTo(u"Undo"_s));
    press(Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return files() == before; }));
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_TRUE(waitForScreen(Navigator::Settings));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(waitForScreen(Navigator::Done));
}

TEST_F(WayIn, SearchOpensAnEmptyToolThatTakesADrop) {
    open();
    findTool("shrink photos");
    ASSERT_TRUE(waitForScreen(Navigator::Tool));
    EXPECT_EQ(app().tool()->toolID(), u"image.compress"_s);
    EXPECT_FALSE(app().tool()->canStart());

    addPhoto("late.jpg");
    drop(folder().files() / "late.jpg");
    EXPECT_TRUE(waitFor([this] { return app().tool()->files()->count() == 1; }))
        << "dropped on the open tool";
}

TEST_F(WayIn, PastingNoFilesIsAnswered) {
    QString said;
    open();
    QObject::connect(&app(), &App::said, &app(), [&said](const QString& sentence) { said = sentence; });
    QGuiApplication::clipboard()->setText(u"words"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(said.isEmpty());
    EXPECT_TRUE(waitFor([&] { return isShown(said); }));
    EXPECT_EQ(screen(), Navigator::Home);
}

TEST_F(WayIn, WhatIsSetGoesForTheNextJob) {
    addPhoto("Trip/a.jpg");
    open();
    click(u"Settings"_s);
    ASSERT_TRUE(waitForScreen(Navigator::Settings));
    click(u"Dark"_s);
    EXPECT_EQ(PreferencesStore().appearance(), Appearance::dark);
    // The first of the two is for whole folders.
    click(u"In one folder"_s);
    ASSERT_TRUE(
        waitFor([] { return PreferencesStore().saveFolders().mode == SavePreferences::Mode::oneFolder; }));
    openTool(u"Convert"_s, folder().files() / "Trip");
    start();
    ASSERT_TRUE(waitForScreen(Navigator::Done));
    EXPECT_EQ(namesIn(folder().files() / "Trip"), "a.jpg");
    std::vector<std::string> saved;
    for (const auto& [name, content] : snapshot(folder().home() / "Downloads")) {
        if (name.ends_with(".webp")) saved.push_back(name);
    }
    EXPECT_THAT(saved, testing::ElementsAre(testing::HasSubstr("Tamble/")));
}

TEST_F(WayIn, AnInterruptedJobIsAskedAbout) {
    const auto photo = addPhoto("Trip/a.jpg");
    const auto before = files();
    std::vector<InputFile> inputs{{.url = photo,
                                   .root = photo.parent_path(),
                                   .byteSize = static_cast<std::int64_t>(fs::file_size(photo))}};
    auto journal = std::make_shared<JournalFile>(journalFolder(), startedJob("image.compress", inputs));
    systemEngine(journal).run(inputs, CopyThroughProcessor(),
                              {.location = location::Folder{.value = folder().files() / "New"}});
    // Its program dies before the job is in the log.
    journal.reset();
    ASSERT_NE(files(), before);
    open();
    ASSERT_TRUE(waitFor([this] { return isShown(u"A job was interrupted"_s); }));
    click(u"Put everything back"_s);
    EXPECT_TRUE(waitFor([&] { return files() == before; }));
    EXPECT_EQ(app().activity()->count(), 1);
}

TEST_F(WayIn, ASecondProgramHandsItsFilesOver) {
    const auto runtime = folder().home() / "run";
    fs::create_directories(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    ::setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
    SingleInstance first(SingleInstance::defaultName());
    EXPECT_FALSE(SingleInstance(SingleInstance::defaultName()).handOver({}));
    // What a program that died leaves.
    std::ofstream(runtime / "tamble-desktop") << "";
    first.listen();
    std::vector<QList<QUrl>> arrivals;
    QObject::connect(&first, &SingleInstance::arrived,
                     [&](const QList<QUrl>& urls) { arrivals.push_back(urls); });

    QList<QUrl> many;
    for (int i = 0; i < 20'000; ++i) many << urlOf("/tmp/fünf \xFF/" + std::to_string(i));
    bool isTaken = false;
    std::jthread second([&] { isTaken = SingleInstance(SingleInstance::defaultName()).handOver(many); });
    ASSERT_TRUE(waitFor([&] { return !arrivals.empty(); }));
    second.join();
    EXPECT_TRUE(isTaken);
    EXPECT_EQ(arrivals.front(), many);

    arrivals.clear();
    QProcess program;
    program.setWorkingDirectory(QString::fromStdString(folder().files().native()));
    program.start(QStringLiteral(TAMBLE_DESKTOP), {u"here.jpg"_s});
    ASSERT_TRUE(waitFor([&] { return !arrivals.empty() && program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(arrivals.front(), QList<QUrl>{urlOf(folder().files() / "here.jpg")});
}

}  // namespace
}  // namespace tamble
