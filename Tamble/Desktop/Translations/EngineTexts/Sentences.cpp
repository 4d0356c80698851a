#include <Tamble/Desktop/Translations/EngineTexts/EngineTexts.h>

#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Intake/ScanResult.h>
#include <TambleCore/Jobs/Isolation/WorkerPool.h>
#include <TambleCore/Jobs/WatchedInput.h>
#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/Rename/RenameItem.h>

#include <array>

namespace tamble {
namespace {

/// What no table answers.
constexpr std::array<std::string_view, 8> fixed{
    "Processor finished without writing a file",
    "Combiner finished without writing a file",
    "No staging folder",
    "it was cancelled by itself.",
    "no cause was given.",
    "Nothing was renamed: a file couldn't be renamed (it may be open or locked), so all the old names were "
    "kept.",
    "There is no room for previews on this computer.",
    "The tool made no file.",
};

template <typename Error>
void addTable(EngineTexts& texts) {
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<typename Error::Case>>(
        [&](auto enumerator) { texts.add(Error(enumerator.value).sentence()); });
}

}  // namespace

std::span<const std::string_view> sentencesListedByHand() {
    return fixed;
}

void addSentences(EngineTexts& texts) {
    addTable<ConversionError>(texts);
    addTable<PDFError>(texts);
    boost::mp11::mp_for_each<boost::describe::describe_enumerators<RenameItem::Problem>>(
        [&](auto enumerator) { texts.add(sentence(enumerator.value)); });
    texts.add(WorkerUnavailable({}).sentence());
    for (const auto kind : {InputFailure::Kind::missing, InputFailure::Kind::changed})
        texts.add(InputFailure(kind, "This file").sentence());
    for (const std::string_view sentence : fixed) texts.add(sentence);
    // The format's name stands in a sentence of the window.
    for (const SkipReason& reason : std::initializer_list<SkipReason>{skip::NameTaken{}, skip::NotSmaller{},
                                                                      skip::NoPassword{}, skip::SameName{}})
        texts.add(sentence(reason));
    // The number of unreadable items stands in a sentence of the window.
    for (const std::string& note :
         scanNotes({.skippedPackageCount = 1, .skippedLinkCount = 1, .emptyFolderCount = 1}))
        texts.add(note);
}

}  // namespace tamble
