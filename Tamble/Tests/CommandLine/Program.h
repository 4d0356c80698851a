#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace tamble::test {

/// What a run of the real program left.
struct Finished {
    int status = 0;
    std::string output;
    std::string errors;
};

/// A home of its own for each test, with the folder that the program is started in; removed afterwards.
class Home {
  public:
    Home();
    ~Home();
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    const std::filesystem::path& folder() const { return work_; }
    /// Where the program would keep its own files.
    const std::filesystem::path& data() const { return data_; }

    /// Runs `tamble` with these words in folder(). `whileRunning` is called once it was started.
    Finished tamble(const std::vector<std::string>& words, const std::string& input = {},
                    const std::function<void(pid_t)>& whileRunning = {}) const;
    /// Runs it with standard error on a terminal of so many cells; its output is what the terminal received.
    Finished tambleOnTerminal(const std::vector<std::string>& words, unsigned short cells,
                              bool noColour = false) const;
    /// Runs a shell command in folder().
    Finished shell(const std::string& command) const;

    /// A picture of one colour with a gradient: an uncompressed 24-bit BMP.
    std::filesystem::path addPicture(const std::filesystem::path& name, int width = 64,
                                     int height = 48) const;
    std::filesystem::path addFile(const std::filesystem::path& name, const std::string& content) const;
    /// Every path below folder() with its content, to see what a run changed.
    std::vector<std::pair<std::string, std::string>> contents() const;

  private:
    std::filesystem::path root_;
    std::filesystem::path work_;
    std::filesystem::path data_;
};

/// A PDF of that many pages, each a point wider than the one before; readers find its objects without a table
/// of them.
std::string pdfDocument(int pages);

}  // namespace tamble::test
