#include "Program.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tamble::test {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return std::move(content).str();
}

/// Becomes the program; never returns.
[[noreturn]] void become(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

void enter(const fs::path& root, const fs::path& work) {
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) unsetenv(name);
    setenv("HOME", root.c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    if (chdir(work.c_str()) != 0) _exit(126);
}

void redirect(const fs::path& file, int flags, int descriptor) {
    const int opened = open(file.c_str(), flags, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0) _exit(126);
}

int statusOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string everythingFrom(int descriptor) {
    std::string received;
    std::array<char, 4096> buffer{};
    // A terminal whose other end was closed answers with an error.
    for (ssize_t count = 0; (count = read(descriptor, buffer.data(), buffer.size())) > 0;) {
        received.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return received;
}

void appendNumber(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

std::vector<std::string> withProgram(const std::vector<std::string>& words) {
    std::vector<std::string> all{TAMBLE_PROGRAM};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

}  // namespace

Home::Home() {
    std::string name = (fs::temp_directory_path() / "tamble-test-XXXXXX").native();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("No folder for the test");
    root_ = name;
    work_ = root_ / "work";
    data_ = root_ / ".local/share/tamble";
    fs::create_directory(work_);
}

Home::~Home() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

Finished Home::tamble(const std::vector<std::string>& words, const std::string& input,
                      const std::function<void(pid_t)>& whileRunning) const {
    const fs::path in = root_ / "in";
    std::ofstream(in, std::ios::binary) << input;
    const std::vector<std::string> all = withProgram(words);
    const pid_t child = fork();
    if (child == 0) {
        enter(root_, work_);
        redirect(in, O_RDONLY, STDIN_FILENO);
        redirect(root_ / "out", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
        redirect(root_ / "err", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
        become(all);
    }
    if (whileRunning) whileRunning(child);
    const int status = statusOf(child);
    return {status, contentOf(root_ / "out"), contentOf(root_ / "err")};
}

Finished Home::tambleOnTerminal(const std::vector<std::string>& words, unsigned short cells,
                                bool noColour) const {
    const std::vector<std::string> all = withProgram(words);
    winsize size{.ws_row = 24, .ws_col = cells, .ws_xpixel = 0, .ws_ypixel = 0};
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child < 0) throw std::system_error(errno, std::generic_category(), "no pseudo-terminal");
    if (child == 0) {
        enter(root_, work_);
        setenv("TERM", "xterm-256color", 1);
        unsetenv("NO_COLOR");
        if (noColour) setenv("NO_COLOR", "1", 1);
        redirect(root_ / "out", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
        become(all);
    }
    std::string received = everythingFrom(terminal);
    close(terminal);
    return {statusOf(child), contentOf(root_ / "out"), std::move(received)};
}

Finished Home::shell(const std::string& command) const {
    const pid_t child = fork();
    if (child == 0) {
        enter(root_, work_);
        redirect(root_ / "out", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
        redirect(root_ / "err", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
        become({"bash", "-c", command});
    }
    const int status = statusOf(child);
    return {status, contentOf(root_ / "out"), contentOf(root_ / "err")};
}

fs::path Home::addPicture(const fs::path& name, int width, int height) const {
    const auto rowBytes = static_cast<std::uint32_t>((3 * width + 3) / 4 * 4);
    const std::uint32_t headerBytes = 54;
    std::string bytes = "BM";
    appendNumber(bytes, headerBytes + rowBytes * static_cast<std::uint32_t>(height), 4);
    appendNumber(bytes, 0, 4);
    appendNumber(bytes, headerBytes, 4);
    appendNumber(bytes, 40, 4);
    appendNumber(bytes, static_cast<std::uint32_t>(width), 4);
    appendNumber(bytes, static_cast<std::uint32_t>(height), 4);
    appendNumber(bytes, 1, 2);
    appendNumber(bytes, 24, 2);
    for (int i = 0; i < 6; ++i) appendNumber(bytes, 0, 4);
    for (int y = 0; y < height; ++y) {
        std::string row(rowBytes, '\0');
        for (int x = 0; x < width; ++x) {
            row[static_cast<std::size_t>(3 * x)] = static_cast<char>(x);
            row[static_cast<std::size_t>(3 * x + 1)] = static_cast<char>(y);
            row[static_cast<std::size_t>(3 * x + 2)] = static_cast<char>(x * y);
        }
        bytes += row;
    }
    return addFile(name, bytes);
}

fs::path Home::addFile(const fs::path& name, const std::string& content) const {
    const fs::path file = work_ / name;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

std::vector<std::pair<std::string, std::string>> Home::contents() const {
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& entry : fs::recursive_directory_iterator(work_)) {
        all.emplace_back(entry.path().native(),
                         entry.is_regular_file() ? contentOf(entry.path()) : std::string());
    }
    std::ranges::sort(all);
    return all;
}

std::string pdfDocument(int pages) {
    std::ostringstream text;
    text << "%PDF-1.4\n1 0 obj <</Type/Catalog/Pages 2 0 R>> endobj\n2 0 obj <</Type/Pages/Count " << pages
         << "/Kids[";
    for (int page = 0; page < pages; ++page) text << 3 + page << " 0 R ";
    text << "]>> endobj\n";
    for (int page = 0; page < pages; ++page)
        text << 3 + page << " 0 obj <</Type/Page/Parent 2 0 R/MediaBox[0 0 " << 100 + page
             << " 200]>> endobj\n";
    text << "trailer <</Root 1 0 R>>\n";
    return text.str();
}

}  // namespace tamble::test
