#pragma once

#include <Tamble/Worker/RequestQueue.h>
#include <Tamble/Worker/Worker.h>

namespace tamble {

/// Does what is asked and answers how it ended; every exception becomes a reply.
WorkerReply replyTo(const WorkerRequest& request, const ToolLookup& tools, const WorkContext& context);

/// Passes on the first fraction, and then one every 0.1 s at most. May be called from any thread.
std::function<void(double)> throttledProgress(RequestQueue& queue);

}  // namespace tamble
