#pragma once

#include <TambleCore/Platform/Sandbox/Sandbox.h>

#include <span>

/// The layers of the sandbox, from the outside in.
namespace tamble::sandbox {

/// Limits memory and file size, makes this process the first to go when the machine runs out of memory, and
/// lets it leave no core file, which would hold the user's picture.
void limitResources(const SandboxPolicy& policy);

/// Confines writing to these folders; answers whether the kernel can.
bool confineWriting(std::span<const std::filesystem::path> folders);

/// Refuses the system calls that the policy's work does not need; answers whether the kernel can.
bool confineCalls(const SandboxPolicy& policy);

}  // namespace tamble::sandbox
