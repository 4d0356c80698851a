#pragma once

#include <TambleCore/Support/ItemNote.h>

#include <exception>
#include <functional>
#include <stop_token>

namespace tamble {

/// Thrown by work that noticed a stop request; it is neither a failure nor a result.
class Cancelled : public std::exception {
  public:
    ~Cancelled() override;
    const char* what() const noexcept override;
};

/// What a piece of work is given beside its input: where to report its progress, when to stop, and where to
/// leave a note for the result.
struct WorkContext {
    /// Takes the done fraction of this piece of work, 0…1. May be empty; may be called from any thread.
    std::function<void(double)> progress;
    std::stop_token stop;
    /// Takes what people should know about the output; the last one counts. May be empty.
    std::function<void(ItemNote)> note = {};

    void report(double fraction) const {
        if (progress) progress(fraction);
    }
    void leave(ItemNote about) const {
        if (note) note(about);
    }
    /// Throws Cancelled after a stop request. Long loops call it at least every 0.1 s.
    void throwIfStopped() const;
};

}  // namespace tamble
