#pragma once

#include <Tamble/Model/WordMatch.h>

#include <TambleCore/Catalog/ToolCatalog.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tamble {

/// Finds tools by what people type: parts of titles, words they would use for it, with typing mistakes.
class QuickSearch {
  public:
    /// A text of the catalog in the language of the screen; asked for titles, subtitles and the keywords of a
    /// tool as one text. Words of both languages are found.
    using Translation = std::function<std::string(std::string_view)>;

    explicit QuickSearch(const Translation& translation = {});

    /// The tools that all words fit, the best first; tools that cannot run here come after all those that
    /// can. None for a query without letters or digits.
    std::vector<const ToolInfo*> find(std::string_view query, std::size_t most = 12) const;

    static bool canRunHere(const ToolInfo& tool);

  private:
    using Words = std::vector<std::u32string>;
    enum class Field { title, keyword, category, subtitle };
    /// Where a word stands: in a field of the tool at that place of the catalog.
    struct Place {
        std::size_t tool = 0;
        Field field = Field::title;
    };
    /// A title, or a keyword of several words.
    struct Phrase {
        std::u32string letters;
        Place place;
    };
    /// A tool's points; none for a tool that does not fit.
    using Scores = std::vector<int>;

    static int points(Field field, WordMatch match);
    void add(std::string_view text, Place place);
    Scores scores(std::u32string_view typed, bool forgiving) const;
    Scores scores(const Words& typed, bool forgiving) const;
    void addPhrasePoints(const Words& typed, Scores& scores) const;

    std::map<std::u32string, std::vector<Place>> words_;
    std::vector<Phrase> phrases_;
    std::vector<bool> canRun_;
};

}  // namespace tamble
