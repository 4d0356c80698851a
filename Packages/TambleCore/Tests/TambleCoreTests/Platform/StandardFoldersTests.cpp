#include <TambleCore/Platform/StandardFolders.h>

#include <cstdlib>
#include <map>

#include <TambleCoreTests/TemporaryFolder.h>

namespace tamble {
namespace {

/// Sets variables of the environment and puts the old values back.
class Environment {
  public:
    void set(const char* name, const std::string& value) {
        const char* old = std::getenv(name);
        before_.try_emplace(name, old == nullptr ? std::nullopt : std::optional<std::string>(old));
        ::setenv(name, value.c_str(), 1);
    }
    Environment() = default;
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() {
        for (const auto& [name, value] : before_) {
            if (value) {
                ::setenv(name.c_str(), value->c_str(), 1);
            } else {
                ::unsetenv(name.c_str());
            }
        }
    }

  private:
    std::map<std::string, std::optional<std::string>> before_;
};

class StandardFolders : public ::testing::Test {
  protected:
    StandardFolders() {
        environment.set("HOME", home.path());
        for (const auto* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
            environment.set(variable, "");
        }
    }
    testing::TemporaryFolder home;
    Environment environment;
};

TEST_F(StandardFolders, variablesMoveThemWhenTheyAreAbsolute) {
    EXPECT_EQ(folders::applicationSupport(), home.path() / ".local/share/tamble");
    EXPECT_EQ(folders::preferences(), home.path() / ".config/tamble");
    EXPECT_EQ(folders::caches(), home.path() / ".cache/tamble");
    environment.set("XDG_DATA_HOME", "/data");
    environment.set("XDG_CACHE_HOME", "relative/cache");
    EXPECT_EQ(folders::applicationSupport(), "/data/tamble");
    EXPECT_EQ(folders::caches(), home.path() / ".cache/tamble");
}

TEST_F(StandardFolders, downloadsIsTheFolderThatTheDesktopNames) {
    EXPECT_EQ(folders::downloads(), home.path() / "Downloads");
    const std::pair<std::string, std::filesystem::path> cases[] = {
        {"# XDG_DOWNLOAD_DIR=\"$HOME/no\"\nXDG_DOWNLOAD_DIR=\"$HOME/Hämtningar\"\n",
         home.path() / "Hämtningar"},
        {" XDG_DOWNLOAD_DIR = \"/mnt/big \\\"disk\\\"\"\n", "/mnt/big \"disk\""},
        {"XDG_DOWNLOAD_DIR=\"$HOME/\"\n", home.path() / "Downloads"},
        {"XDG_DOWNLOAD_DIR=\"relative\"\n", home.path() / "Downloads"},
        {"XDG_DOWNLOAD_DIR_OLD=\"/old\"\nXDG_MUSIC_DIR=\"/music\"\n", home.path() / "Downloads"},
    };
    for (const auto& [content, expected] : cases) {
        home.file(".config/user-dirs.dirs", content);
        EXPECT_EQ(folders::downloads(), expected) << content;
    }
}

}  // namespace
}  // namespace tamble
