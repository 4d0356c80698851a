#pragma once

#include <TambleCore/Intake/FolderScanner.h>
#include <TambleCore/Intake/InputFileMaker.h>
#include <TambleCore/Platform/DirectoryListing.h>
#include <TambleCore/Platform/FinderOrder.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace tamble {

/// The walk of one scan and what it has gathered so far.
class FolderScanner::Builder {
  public:
    /// `dropCount` items will be visited; their files go to `files`.
    Builder(const ScanOptions& options, std::size_t dropCount, InputFileMaker& files, std::stop_token stop)
        : options_(options), dropCount_(dropCount), files_(files), stop_(std::move(stop)) {}

    void visit(const std::filesystem::path& url);
    /// All that was gathered but the files.
    ScanResult result() && { return std::move(result_); }

  private:
    /// What a file name's extension says.
    struct Verdict {
        std::optional<ContentType> type;
        bool isAccepted = false;
    };
    struct TextHash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    template <typename Value>
    using MapByText = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;
    using Names = std::unordered_set<std::string>;

    void visitRoot(const std::filesystem::path& url);
    void visitLooseFile(const std::filesystem::path& url, std::int64_t byteSize);

    /// Walks the folder that `node` tells of, `name` in the open folder `parent`, and gives the node its
    /// counts and children.
    void walk(int parent, const char* name, FolderNode& node, const FilePath& root);
    void walkSubfolder(int parent, const char* name, FolderNode& parentNode, const FilePath& root);
    /// Adds the file to `found` if it is wanted and new; `taken` may be null where no file can repeat
    /// another.
    void takeFile(int parent, std::string_view name, FoundFiles& found, Names* taken);

    /// By the extension of the name; the file is looked into when there is none.
    Verdict verdict(int parent, std::string_view name);
    /// The keys of the names taken from this folder so far; the reference stays good.
    Names& takenFrom(const std::filesystem::path& folder);

    /// Whether files of this folder could have the key of another file in this scan.
    bool mayRepeat(const FolderNode& node, const DirectoryListing& listing) const;

    const ScanOptions& options_;
    std::size_t dropCount_;
    InputFileMaker& files_;
    std::stop_token stop_;
    ScanResult result_;
    FinderOrder order_;
    MapByText<Verdict> verdicts_;
    /// By the folder's key. A file's exact path key is its folder's key, a slash and its name's key.
    MapByText<Names> seen_;
    /// Files, links and packages met in folders, whatever became of them.
    std::size_t itemsMet_ = 0;
};

}  // namespace tamble
