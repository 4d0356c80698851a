#pragma once

#include <Tamble/Model/ActivityEntry.h>

#include <memory>

namespace tamble {

/// An entry as its JSON text: the log is read and written without looking into the entries, of which one may
/// tell of a hundred thousand files.
class StoredEntry {
  public:
    explicit StoredEntry(const ActivityEntry& entry);

    /// The entries of a log. Throws DecodeError for a text that is no list.
    static std::vector<StoredEntry> all(std::string log);

    std::string_view json() const noexcept { return json_; }
    bool hasID(std::string_view id) const;
    /// Throws DecodeError.
    ActivityEntry decoded() const;

  private:
    StoredEntry(std::shared_ptr<const std::string> text, std::string_view json)
        : text_(std::move(text)), json_(json) {}

    std::shared_ptr<const std::string> text_;
    /// Refers into the text.
    std::string_view json_;
};

/// The log that holds the entries, in parts to be written one after the other.
std::vector<std::string_view> logParts(const std::vector<StoredEntry>& entries);

}  // namespace tamble
