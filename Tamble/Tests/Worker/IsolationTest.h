#pragma once

#include <TambleCore/Jobs/Isolation/IsolatedWork.h>

#include <fstream>

#include "MisbehavingTools.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tamble {

/// A folder of inputs and a staging folder, and workers that know the misbehaving tools.
class IsolationTest : public testing::Test {
  protected:
    IsolationTest() {
        std::string pattern = (std::filesystem::temp_directory_path() / "isolation-XXXXXX").native();
        folder_ = ::mkdtemp(pattern.data());
        std::filesystem::create_directories(staging());
        limits_.stopping = std::chrono::milliseconds(300);
        limits_.idle = std::chrono::milliseconds(1500);
        limits_.processor = std::chrono::milliseconds(800);
        limits_.memory = std::uint64_t{512} << 20U;
    }
    ~IsolationTest() override { std::filesystem::remove_all(folder_); }

    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path staging() const { return folder_ / "TambleStaging-1"; }

    InputFile input(const std::string& name, const std::string& content = "content") const {
        const auto url = folder_ / name;
        std::ofstream(url, std::ios::binary) << content;
        return {.url = url, .root = folder_, .byteSize = static_cast<std::int64_t>(content.size())};
    }

    std::shared_ptr<WorkerPool> pool() {
        if (!pool_) pool_ = std::make_shared<WorkerPool>(limits_, MISBEHAVING_WORKER);
        return pool_;
    }

    std::unique_ptr<FileProcessor> processor(const MisbehavingSettings& settings = {}) {
        return std::get<std::unique_ptr<FileProcessor>>(
            isolatedWork(*misbehavingTool("test.each"), encodeJson(settings), {}, pool()));
    }

    /// How the item ended, in a word or two.
    static std::string outcomeOf(const FileProcessor& processor, const InputFile& file,
                                 const std::filesystem::path& destination, const WorkContext& context = {}) {
        try {
            processor.process(file, destination, context);
            return "done";
        } catch (const ProcessorSkip& skip) {
            return "skipped: " + sentence(skip.reason());
        } catch (const Cancelled&) {
            return "cancelled";
        } catch (const Failure& failure) {
            return "failed: " + failure.code();
        }
    }

    static std::string contentOf(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    WorkerLimits limits_;

  private:
    std::filesystem::path folder_;
    std::shared_ptr<WorkerPool> pool_;
};

}  // namespace tamble
