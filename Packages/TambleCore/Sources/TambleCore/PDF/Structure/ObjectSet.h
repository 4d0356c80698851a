#pragma once

#include <unordered_set>

#include <qpdf/QPDFObjectHandle.hh>

namespace tamble::pdf {

/// A set of indirect objects of one document.
class ObjectSet {
  public:
    /// Whether it is new. Direct objects are nobody's: always new.
    bool insert(const QPDFObjectHandle& object) {
        return !object.isIndirect() || numbers_.insert(object.getObjectID()).second;
    }
    bool contains(const QPDFObjectHandle& object) const {
        return object.isIndirect() && numbers_.contains(object.getObjectID());
    }
    bool empty() const { return numbers_.empty(); }

  private:
    std::unordered_set<int> numbers_;
};

}  // namespace tamble::pdf
