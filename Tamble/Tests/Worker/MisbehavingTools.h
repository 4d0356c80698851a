#pragma once

#include <TambleCore/Jobs/ToolDefinition.h>

namespace tamble {

/// What the test's tool does with a file.
enum class Deed {
    copy,            ///< what it should: copies the file
    abort,           ///< dies by itself, leaving half an output
    crash,           ///< dies of a wrong address
    leave,           ///< ends the process as if all were well
    waitForever,     ///< obeys nothing and uses no processor
    spinForever,     ///< obeys nothing and uses all of it
    waitForStop,     ///< reports progress until it is stopped
    eatMemory,       ///< takes memory without end, without dying of it itself
    talkNonsense,    ///< writes what is no message to the program
    claimEndlessly,  ///< announces a message of four gigabytes
    complain,        ///< writes much to standard error, then copies
    probeSandbox,    ///< tries what is forbidden; the output lists what succeeded
    skip,
    fail,
    failWithSystemError,
};
BOOST_DESCRIBE_ENUM(Deed, copy, abort, crash, leave, waitForever, spinForever, waitForStop, eatMemory,
                    talkNonsense, claimEndlessly, complain, probeSandbox, skip, fail, failWithSystemError)

struct MisbehavingSettings {
    /// For files without a deed of their own in their name, as in "crash.bin".
    Deed deed = Deed::copy;
    /// What probeSandbox tries to write to, outside the staging folder.
    std::string outside;
    friend bool operator==(const MisbehavingSettings&, const MisbehavingSettings&) = default;
};
BOOST_DESCRIBE_STRUCT(MisbehavingSettings, (), (deed, outside))

/// "test.each", one output of each file; "test.all", which joins all files. Null for any other.
const ToolDefinition* misbehavingTool(std::string_view id);

}  // namespace tamble
