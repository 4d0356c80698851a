#include <TambleCore/Support/Log.h>
#include <TambleCore/Support/Text.h>

#include <cstdlib>
#include <mutex>

#include <spdlog/logger.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/sinks/syslog_sink.h>

namespace tamble {
namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && std::string_view(value) == "1";
}

spdlog::logger& sharedLogger() {
    static const std::shared_ptr<spdlog::logger> logger = [] {
        spdlog::sink_ptr sink;
        if (isSet("TAMBLE_LOG")) {
            sink = std::make_shared<spdlog::sinks::stderr_sink_mt>();
        } else {
            // The journal listens here too, and needs no library that would slow every start.
            sink = std::make_shared<spdlog::sinks::syslog_sink_mt>("tamble", 0, LOG_USER, false);
        }
        auto made = std::make_shared<spdlog::logger>("tamble", std::move(sink));
        // A machine without a journal is no reason to disturb anyone.
        made->set_error_handler([](const std::string&) {});
        return made;
    }();
    return *logger;
}

}  // namespace

struct LogCapture::Lines {
    static std::mutex& mutex() {
        static std::mutex shared;
        return shared;
    }
    static std::weak_ptr<Lines>& current() {
        static std::weak_ptr<Lines> shared;
        return shared;
    }
    std::string text;
};

LogCapture::LogCapture() : lines_(std::make_shared<Lines>()) {
    const std::scoped_lock lock(Lines::mutex());
    Lines::current() = lines_;
}

LogCapture::~LogCapture() {
    const std::scoped_lock lock(Lines::mutex());
    lines_.reset();
}

std::string LogCapture::text() const {
    const std::scoped_lock lock(Lines::mutex());
    return lines_->text;
}

void Log::write(Level level, const std::string& line) const {
    {
        const std::scoped_lock lock(LogCapture::Lines::mutex());
        if (const auto capture = LogCapture::Lines::current().lock()) {
            capture->text += fmt::format("{}: {}\n", category_, line);
            return;
        }
    }
    sharedLogger().log(level == Level::error ? spdlog::level::err : spdlog::level::info, "{}: {}", category_,
                       line);
}

std::string privately(const std::filesystem::path& path) {
    static const bool revealed = isSet("TAMBLE_LOG_PRIVATE");
    return revealed ? printable(path.native()) : "<private>";
}

}  // namespace tamble
