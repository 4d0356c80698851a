#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamble {

/// One of the standard streams as people see it.
class Terminal {
  public:
    static Terminal output();
    static Terminal errors();

    /// Whether somebody watches and the terminal can redraw a line.
    bool isLive() const { return isLive_; }
    /// The cells in a line now; 80 where that is unknown.
    std::size_t width() const;

    /// The text in bold, dimmed or red, where the terminal shows colours and NO_COLOR does not forbid them.
    std::string strong(std::string_view text) const { return styled("1", text); }
    std::string faint(std::string_view text) const { return styled("2", text); }
    std::string alarming(std::string_view text) const { return styled("31", text); }

  private:
    explicit Terminal(int descriptor);
    std::string styled(std::string_view code, std::string_view text) const;

    int descriptor_;
    bool isLive_ = false;
    bool hasColours_ = false;
};

/// Writes to standard output or standard error; a reader that went away is noticed when the program ends.
void printOutput(std::string_view text);
void printError(std::string_view text);

}  // namespace tamble
