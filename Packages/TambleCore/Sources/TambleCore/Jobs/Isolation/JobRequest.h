#pragma once

#include <TambleCore/Support/Json/JsonCoding.h>

namespace tamble {

/// The value that a job is made of: which tool, and the JSON form of its settings record.
struct JobRequest {
    std::string toolID;
    Json settings;
    friend bool operator==(const JobRequest&, const JobRequest&) = default;
};
BOOST_DESCRIBE_STRUCT(JobRequest, (), (toolID, settings))

}  // namespace tamble
