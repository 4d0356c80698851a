#include "MisbehavingTools.h"

#include <TambleCore/Jobs/Isolation/WorkerMessage.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <thread>

#include "SandboxProbe.h"
#include <unistd.h>

namespace tamble {
namespace {

using namespace std::chrono_literals;

void append(std::ofstream& output, const InputFile& file) {
    output << std::ifstream(file.url.c_str(), std::ios::binary).rdbuf();
}

void say(std::string_view bytes) {
    std::ignore = ::write(workerConnection, bytes.data(), bytes.size());
    std::this_thread::sleep_for(1h);
}

void eatMemory() {
    std::vector<std::string> meals;
    for (;;) meals.emplace_back(std::size_t{16} << 20U, 'x');
}

void perform(const MisbehavingSettings& settings, const InputFile& file, std::ofstream& output,
             const WorkContext& context) {
    switch (caseNamed<Deed>(file.url.stem().native()).value_or(settings.deed)) {
        case Deed::copy:
            context.report(0.5);
            break;
        case Deed::abort:
            output << "half" << std::flush;
            std::abort();
        case Deed::crash:
            std::raise(SIGSEGV);
            break;
        case Deed::leave:
            std::_Exit(0);
        case Deed::waitForever:
            output << "half" << std::flush;
            for (;;) std::this_thread::sleep_for(1h);
        case Deed::spinForever:
            for (volatile int turns = 0;;) turns = turns + 1;
        case Deed::waitForStop:
            for (;;) {
                context.report(0.25);
                context.throwIfStopped();
                std::this_thread::sleep_for(10ms);
            }
        case Deed::eatMemory:
            eatMemory();
            break;
        case Deed::talkNonsense:
            say(std::string("\x05\x00\x00\x00{no}\n", 9));
            break;
        case Deed::claimEndlessly:
            say("\xff\xff\xff\xff");
            break;
        case Deed::complain:
            for (int line = 0; line < 20000; ++line) std::cerr << "This file is not to my taste.\n";
            break;
        case Deed::probeSandbox:
            output << probeSandbox(settings.outside);
            return;
        case Deed::skip:
            throw ProcessorSkip(skip::AlreadyInFormat{"Test"});
        case Deed::fail:
            throw Failure("testCode", "A sentence for people.", "a detail");
        case Deed::failWithSystemError:
            throw std::filesystem::filesystem_error("cannot",
                                                    std::make_error_code(std::errc::no_space_on_device));
    }
    append(output, file);
}

class Each final : public FileProcessor {
  public:
    explicit Each(MisbehavingSettings settings) : settings_(std::move(settings)) {}
    std::string fileExtension() const override { return "out"; }
    std::string outputName(const InputFile& file) const override { return file.url.stem().native() + ".out"; }
    std::optional<SkipReason> skipReason(const InputFile&) const override { return std::nullopt; }
    bool canReplaceOriginals() const override { return false; }
    bool keepsModificationTime() const override { return true; }
    void process(const InputFile& file, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        std::ofstream output(destination, std::ios::binary);
        perform(settings_, file, output, context);
    }

  private:
    MisbehavingSettings settings_;
};

class All final : public FileCombiner {
  public:
    explicit All(MisbehavingSettings settings) : settings_(std::move(settings)) {}
    std::string fileExtension() const override { return "out"; }
    std::string outputName(std::span<const InputFile>) const override { return "all.out"; }
    void combine(std::span<const InputFile> files, const std::filesystem::path& destination,
                 const WorkContext& context) const override {
        std::ofstream output(destination, std::ios::binary);
        for (const auto& file : files) perform(settings_, file, output, context);
    }

  private:
    MisbehavingSettings settings_;
};

template <typename Work>
ToolDefinition made(std::string id) {
    auto definition = makeToolDefinition(
        std::move(id), MisbehavingSettings{},
        [](const MisbehavingSettings& settings) { return std::make_unique<Work>(settings); });
    definition.unreadable = Failure("testUnreadable", "This test file can't be read.");
    definition.estimate = [](std::span<const InputFile> files, const Json& settings, std::stop_token) {
        if (decodeJson<MisbehavingSettings>(settings).deed == Deed::crash) std::raise(SIGSEGV);
        return std::optional(static_cast<std::int64_t>(files.size()) * 1000);
    };
    return definition;
}

}  // namespace

const ToolDefinition* misbehavingTool(std::string_view id) {
    static const std::array tools{made<Each>("test.each"), made<All>("test.all")};
    const auto found = std::ranges::find(tools, id, &ToolDefinition::id);
    return found == tools.end() ? nullptr : &*found;
}

}  // namespace tamble
