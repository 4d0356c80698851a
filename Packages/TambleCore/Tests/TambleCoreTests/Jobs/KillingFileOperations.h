#pragma once

#include <csignal>

#include <TambleCoreTests/Jobs/TestProcessors.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble {

/// Kills the program before or after its Nth change of the file system.
class KillingFileOperations final : public FileOperations {
  public:
    enum class When { before, after };
    KillingFileOperations(int call, When when) : call_(call), when_(when) {}

    /// A move to such a name fails, so that its original is put back.
    static constexpr const char* refusedName = "refused.webp";

    std::filesystem::path trash(const std::filesystem::path& item) override {
        std::filesystem::path landed;
        step([&] { landed = real_.trash(item); });
        return landed;
    }
    void move(const std::filesystem::path& from, const std::filesystem::path& to) override {
        step([&] {
            if (to.filename() == refusedName) throw TestFileOperations::fault();
            real_.move(from, to);
        });
    }
    void remove(const std::filesystem::path& item) override {
        step([&] { real_.remove(item); });
    }
    void createDirectory(const std::filesystem::path& folder) override {
        step([&] { real_.createDirectory(folder); });
    }
    void removeEmptyDirectory(const std::filesystem::path& folder) override {
        step([&] { real_.removeEmptyDirectory(folder); });
    }
    std::optional<std::filesystem::path> findInTrash(const std::filesystem::path& original) override {
        return real_.findInTrash(original);
    }
    bool isNoBinError(const std::error_code& error) const override { return real_.isNoBinError(error); }

    /// Runs `work` in a process of its own, which dies at that call, and answers whether it did.
    static bool kill(int call, When when, const std::function<void(std::shared_ptr<FileOperations>)>& work) {
        const pid_t child = ::fork();
        if (child == 0) {
            work(std::make_shared<KillingFileOperations>(call, when));
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return WIFSIGNALED(status);
    }

  private:
    void step(const std::function<void()>& change) {
        const bool isTheCall = --call_ == 0;
        if (isTheCall && when_ == When::before) std::raise(SIGKILL);
        change();
        if (isTheCall) std::raise(SIGKILL);
    }

    SystemFileOperations real_;
    int call_;
    When when_;
};

}  // namespace tamble
