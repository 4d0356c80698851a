#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <functional>
#include <vector>

#include <qpdf/QPDF.hh>

namespace tamble::pdf {

/// All objects with numbers that can be reached from the trailer, which are those that are saved. Throws
/// Cancelled.
std::vector<QPDFObjectHandle> reachableObjects(QPDF& document, const WorkContext& context);

/// Calls `take` for the references in an object, however deep in its own dictionaries and arrays. It answers
/// what shall stand there instead, or the object itself.
void forEachReference(const QPDFObjectHandle& object,
                      const std::function<QPDFObjectHandle(const QPDFObjectHandle&)>& take);

}  // namespace tamble::pdf
