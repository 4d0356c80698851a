#pragma once

#include <Tamble/Model/ToolSession.h>

#include <QString>

/// What a job will do, in words.
namespace tamble::texts {

/// On the button that starts it, with the count: "Convert 128 photos".
QString start(const ToolSession& session);
/// While it runs: "Converting 128 photos".
QString working(const ToolSession& session);
/// Once it is over: "126 photos converted".
QString finished(const std::string& toolID, int count);

/// How the first file is named: "beach.jpg → beach.webp".
QString example(const JobOrder& order, const JobPlan& plan);

}  // namespace tamble::texts
