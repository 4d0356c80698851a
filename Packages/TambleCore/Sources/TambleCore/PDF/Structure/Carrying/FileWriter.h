#pragma once

#include <TambleCore/Platform/FileDescriptor.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamble::pdf {

/// Objects that are no streams, compressed together (an object stream: ISO 32000-1, 7.5.7).
class ObjectPack {
  public:
    /// Readers unpack a whole pack for one of its objects.
    static constexpr std::size_t mostObjects = 200;

    void add(int number, std::string_view body);
    bool isFull() const noexcept { return numbers_.size() >= mostObjects; }
    bool isEmpty() const noexcept { return numbers_.empty(); }
    /// Compresses what was added; nothing can be added after it.
    void close();

    const std::vector<int>& numbers() const noexcept { return numbers_; }
    /// The stream's dictionary without /Length.
    const std::string& dictionary() const noexcept { return dictionary_; }
    const std::string& data() const noexcept { return bodies_; }

  private:
    std::vector<int> numbers_;
    std::string index_;
    std::string bodies_;
    std::string dictionary_;
};

/// Writes a new PDF, object after object, each under a number that was reserved for it.
class FileWriter {
  public:
    /// `version` as in "1.7". Throws std::filesystem::filesystem_error, as all functions that write.
    FileWriter(const std::filesystem::path& file, const std::string& version);

    /// The first of `count` new numbers, in a row.
    int reserve(int count = 1);

    /// An object that is no stream; it goes into a pack.
    void addObject(int number, std::string_view body);
    /// `dictionary` is open: "<< … " without /Length and ">>".
    void addStream(int number, std::string_view dictionary, std::string_view data);
    void addPack(const ObjectPack& pack);

    /// Ends the file. `information`: the number of /Info.
    void finish(int catalog, std::optional<int> information = {});

  private:
    /// Of the table of where objects are (an entry of a cross-reference stream).
    struct Entry {
        std::uint8_t kind = 0;
        std::uint64_t place = 0;
        std::uint16_t index = 0;
    };
    Entry& entry(int number) { return entries_.at(static_cast<std::size_t>(number)); }
    void closePack();
    void write(std::string_view bytes);
    void flush();
    struct Table {
        /// The first number and the length of each run of numbers that are in use.
        std::string runs;
        std::string entries;
    };
    Table table() const;

    std::filesystem::path file_;
    FileDescriptor descriptor_;
    std::string unwritten_;
    std::uint64_t position_ = 0;
    std::vector<Entry> entries_ = std::vector<Entry>(1);
    ObjectPack pack_;
};

}  // namespace tamble::pdf
