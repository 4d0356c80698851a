#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <qpdf/QPDFObjGen.hh>

namespace tamble::pdf {

/// How the objects of one document are called in another.
struct Renumbering {
    /// Added to the number of every object …
    int base = 0;
    /// … but of these, which get the given numbers …
    std::unordered_map<int, int> given = {};
    /// … and of these, which stand for objects of the other document that come from elsewhere.
    std::unordered_map<int, int> standIns = {};
    /// These are left behind: what refers to them refers to nothing.
    std::unordered_set<int> nothing = {};
    /// Added to the keys under which content is found in the tree of tags (/StructParent, /StructParents).
    std::int64_t tagOffset = 0;

    int numberOf(int number) const {
        for (const auto* exceptions : {&given, &standIns}) {
            const auto found = exceptions->find(number);
            if (found != exceptions->end()) return found->second;
        }
        return base + number;
    }
};

/// Appends an object, written as qpdf writes it, under its new numbers; the objects it refers to are added to
/// `references`. /Length of the outermost dictionary is left out when that is a stream's.
enum class ObjectKind { ordinary, streamDictionary };
void appendRenumbered(std::string& result, std::string_view text, ObjectKind kind, const Renumbering& numbers,
                      std::vector<QPDFObjGen>& references);

}  // namespace tamble::pdf
