#include <TambleCore/PDF/Structure/Carrying/FileWriter.h>
#include <TambleCore/PDF/Structure/Deflate.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/SystemError.h>

#include <array>
#include <random>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>

namespace tamble::pdf {
namespace {

constexpr std::size_t bufferSize = 1U << 20U;
/// Good and fast: the texts of objects are short and alike.
constexpr int packLevel = 6;

/// Kinds of entries (ISO 32000-1, table 18).
constexpr std::uint8_t inFile = 1;
constexpr std::uint8_t inPack = 2;
/// The bytes of an entry's three fields.
constexpr std::array<int, 3> widths{1, 5, 2};

void appendNumber(std::string& text, std::uint64_t value, int bytes) {
    for (int i = bytes; i-- > 0;) text += static_cast<char>(value >> (8U * static_cast<unsigned>(i)) & 0xFFU);
}

/// Tells versions of a file apart (ISO 32000-1, 14.4).
std::string newIdentifier() {
    std::random_device random;
    return fmt::format("{:08x}{:08x}{:08x}{:08x}", random(), random(), random(), random());
}

}  // namespace

void ObjectPack::add(int number, std::string_view body) {
    numbers_.push_back(number);
    index_ += fmt::format("{} {} ", number, bodies_.size());
    bodies_ += body;
    bodies_ += '\n';
}

void ObjectPack::close() {
    dictionary_ =
        fmt::format("<< /Type /ObjStm /N {} /First {} /Filter /FlateDecode ", numbers_.size(), index_.size());
    bodies_ = deflated(index_ + bodies_, packLevel);
    index_ = {};
}

FileWriter::FileWriter(const std::filesystem::path& file, const std::string& version)
    : file_(file), descriptor_(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)) {
    if (!descriptor_) throwLastError("cannot create", file_);
    // Bytes above 127 tell those who move files about that this is no text.
    write("%PDF-" + version + "\n%\xE2\xE3\xCF\xD3\n");
}

int FileWriter::reserve(int count) {
    const auto first = static_cast<int>(entries_.size());
    entries_.resize(entries_.size() + static_cast<std::size_t>(count));
    return first;
}

void FileWriter::addObject(int number, std::string_view body) {
    pack_.add(number, body);
    if (pack_.isFull()) closePack();
}

void FileWriter::addStream(int number, std::string_view dictionary, std::string_view data) {
    entry(number) = {.kind = inFile, .place = position_};
    write(fmt::format("{} 0 obj\n{}/Length {} >>\nstream\n", number, dictionary, data.size()));
    write(data);
    write("\nendstream\nendobj\n");
}

void FileWriter::addPack(const ObjectPack& pack) {
    const int number = reserve();
    for (std::size_t i = 0; i < pack.numbers().size(); ++i) {
        entry(pack.numbers()[i]) = {.kind = inPack,
                                    .place = static_cast<std::uint64_t>(number),
                                    .index = static_cast<std::uint16_t>(i)};
    }
    addStream(number, pack.dictionary(), pack.data());
}

void FileWriter::finish(int catalog, std::optional<int> information) {
    closePack();
    const int number = reserve();
    const std::uint64_t start = position_;
    entry(number) = {.kind = inFile, .place = start};
    const std::string identifier = newIdentifier();
    const std::string info = information ? fmt::format("/Info {} 0 R ", *information) : "";
    const Table places = table();
    addStream(number,
              fmt::format("<< /Type /XRef /Size {} /Index [{}] /Root {} 0 R {}/ID [<{}> <{}>] /W [{} {} {}] "
                          "/Filter /FlateDecode ",
                          entries_.size(), places.runs, catalog, info, identifier, identifier, widths[0],
                          widths[1], widths[2]),
              deflated(places.entries, packLevel));
    write(fmt::format("startxref\n{}\n%%EOF\n", start));
    flush();
}

void FileWriter::closePack() {
    if (pack_.isEmpty()) return;
    pack_.close();
    addPack(std::exchange(pack_, {}));
}

FileWriter::Table FileWriter::table() const {
    Table table;
    // Number 0 is nobody's, and always there.
    const auto isInUse = [this](std::size_t number) { return number == 0 || entries_[number].kind != 0; };
    for (std::size_t first = 0; first < entries_.size();) {
        std::size_t end = first;
        while (end < entries_.size() && isInUse(end)) {
            const Entry& entry = entries_[end++];
            appendNumber(table.entries, entry.kind, widths[0]);
            appendNumber(table.entries, entry.place, widths[1]);
            appendNumber(table.entries, entry.index, widths[2]);
        }
        if (end > first) table.runs += fmt::format("{} {} ", first, end - first);
        first = end + 1;
    }
    return table;
}

void FileWriter::write(std::string_view bytes) {
    position_ += bytes.size();
    if (unwritten_.size() + bytes.size() > bufferSize) flush();
    if (bytes.size() > bufferSize) {
        writeAll(descriptor_.number(), bytes, file_);
    } else {
        unwritten_ += bytes;
    }
}

void FileWriter::flush() {
    writeAll(descriptor_.number(), unwritten_, file_);
    unwritten_.clear();
}

}  // namespace tamble::pdf
