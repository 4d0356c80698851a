#pragma once

#include <exception>
#include <string>

namespace tamble {

/// What went wrong with one item: a short machine word, the sentence people read, and a detail for the log.
/// Each tool family derives one type from it and keeps its sentences in one table.
class Failure : public std::exception {
  public:
    Failure(std::string code, std::string sentence, std::string detail = {});
    ~Failure() override;
    Failure(const Failure&) = default;
    Failure& operator=(const Failure&) = default;

    /// Never translated; kept in results and logs.
    const std::string& code() const noexcept { return code_; }
    const std::string& sentence() const noexcept { return sentence_; }
    /// Empty when there is nothing to add to the sentence.
    const std::string& detail() const noexcept { return detail_; }
    const char* what() const noexcept override { return sentence_.c_str(); }

  private:
    std::string code_;
    std::string sentence_;
    std::string detail_;
};

}  // namespace tamble
