#pragma once

#include <QString>
#include <filesystem>
#include <span>

/// What the desktop does for a program that asks over the session bus.
namespace tamble::desktop {

/// Opens the file manager with these files selected; the folder of the first where there is no file manager
/// that can (org.freedesktop.FileManager1).
void showInFolder(std::span<const std::filesystem::path> files);

/// Tells of something while the window is not in front (org.freedesktop.Notifications).
void notify(const QString& title, const QString& text);

}  // namespace tamble::desktop
