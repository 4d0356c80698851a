#pragma once

#include <TambleCore/PDF/Structure/ObjectSet.h>

#include <vector>

namespace tamble::pdf {

/// Some writers give all pages of a document one list of all its fonts and pictures. A page that leaves the
/// others takes a list of what it really shows, so that it does not carry the pictures of all.
class SharedResources {
  public:
    explicit SharedResources(const std::vector<QPDFObjectHandle>& pages);

    /// Gives the page a list of its own, if it has one together with others.
    void separate(QPDFObjectHandle page);

  private:
    /// The lists that more than one page has.
    ObjectSet shared_;
    ObjectSet separated_;
};

}  // namespace tamble::pdf
