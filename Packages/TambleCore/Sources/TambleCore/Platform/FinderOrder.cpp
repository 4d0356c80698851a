#include <TambleCore/Platform/FinderOrder.h>
#include <TambleCore/Platform/PlainNameKeys.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <optional>
#include <stdexcept>

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/tblcoll.h>
#include <unicode/ustring.h>

namespace tamble {
namespace {

std::unique_ptr<icu::Collator> makeCollator() {
    icu::Locale locale = icu::Locale::getDefault();
    // The "C" locale compares by code, which is nobody's language.
    if (std::string_view(locale.getVariant()) == "POSIX") locale = icu::Locale::getRoot();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(locale, status));
    if (U_SUCCESS(status)) {
        collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        collator->setAttribute(UCOL_STRENGTH, UCOL_SECONDARY, status);
    }
    if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
    return collator;
}

/// A language with rules of its own may give letter pairs a place of their own, as "ch" has in Czech.
bool hasOwnRules(const icu::Collator& collator) {
    const auto* byRules = dynamic_cast<const icu::RuleBasedCollator*>(&collator);
    return byRules == nullptr || !byRules->getRules().isEmpty();
}

}  // namespace

class FinderOrder::Collation {
  public:
    static std::unique_ptr<Collation> make() {
        static const Collation prototype(makeCollator());
        return std::unique_ptr<Collation>(new Collation(prototype));
    }

    void appendSortKey(std::string_view name, std::string& key) const {
        // A name of the file system has up to 255 bytes; only longer texts need the heap.
        std::array<char16_t, 256> onStack;
        std::vector<char16_t> onHeap;
        std::span<char16_t> wide(onStack);
        if (name.size() > wide.size()) {
            onHeap.resize(name.size());
            wide = onHeap;
        }
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t length = 0;
        u_strFromUTF8WithSub(wide.data(), static_cast<std::int32_t>(wide.size()), &length, name.data(),
                             static_cast<std::int32_t>(name.size()), 0xFFFD, nullptr, &status);
        if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));

        std::array<std::uint8_t, 1024> bytes;
        const auto size = collator_->getSortKey(wide.data(), length, bytes.data(), std::ssize(bytes));
        if (size <= std::ssize(bytes)) {
            key.append(bytes.begin(), bytes.begin() + size);
            return;
        }
        std::vector<std::uint8_t> longer(static_cast<std::size_t>(size));
        collator_->getSortKey(wide.data(), length, longer.data(), size);
        key.append(longer.begin(), longer.end());
    }

    /// Absent when the language needs the whole collation for plain names too.
    const std::optional<PlainNameKeys>& plainKeys() const { return plainKeys_; }

  private:
    explicit Collation(std::unique_ptr<icu::Collator> collator) : collator_(std::move(collator)) {
        if (hasOwnRules(*collator_)) return;
        plainKeys_.emplace([this](std::string_view name) {
            std::string key;
            appendSortKey(name, key);
            return key;
        });
    }
    Collation(const Collation& other) : collator_(other.collator_->clone()), plainKeys_(other.plainKeys_) {}

    std::unique_ptr<icu::Collator> collator_;
    std::optional<PlainNameKeys> plainKeys_;
};

FinderOrder::FinderOrder() : collation_(Collation::make()) {}
FinderOrder::~FinderOrder() = default;
FinderOrder::FinderOrder(FinderOrder&&) noexcept = default;
FinderOrder& FinderOrder::operator=(FinderOrder&&) noexcept = default;

std::string FinderOrder::sortKey(std::string_view name) const {
    std::string key;
    collation_->appendSortKey(name, key);
    return key;
}

int FinderOrder::compare(std::string_view a, std::string_view b) const {
    return sortKey(a).compare(sortKey(b));
}

std::vector<std::size_t> FinderOrder::sorted(std::span<const std::string_view> names) const {
    const auto& plainKeys = collation_->plainKeys();
    const bool allPlain = plainKeys && std::ranges::all_of(names, PlainNameKeys::isPlain);

    std::string keys;
    std::vector<std::size_t> ends;
    ends.reserve(names.size());
    for (const auto name : names) {
        if (allPlain) {
            plainKeys->append(name, keys);
        } else {
            collation_->appendSortKey(name, keys);
        }
        ends.push_back(keys.size());
    }
    const auto key = [&](std::size_t i) {
        const std::size_t begin = i == 0 ? 0 : ends[i - 1];
        return std::string_view(keys).substr(begin, ends[i] - begin);
    };
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, [&](std::size_t a, std::size_t b) {
        const int keysCompared = key(a).compare(key(b));
        return keysCompared != 0 ? keysCompared < 0 : names[a] < names[b];
    });
    return order;
}

}  // namespace tamble
