#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>

#include <QCoreApplication>

namespace tamble::texts {
namespace {

QString counted(const std::string& pattern, int count) {
    return QCoreApplication::translate("Engine", pattern.c_str(), nullptr, count);
}

QString ownName(const FilePath& path) {
    // A folder's path ends in a slash.
    const std::filesystem::path plain = path.path();
    return name(plain.has_filename() ? plain.filename() : plain.parent_path().filename());
}

}  // namespace

QString start(const ToolSession& session) {
    return counted(session.definition().panel.words.start, static_cast<int>(session.files().size()));
}

QString working(const ToolSession& session) {
    return counted(session.definition().panel.words.working, static_cast<int>(session.files().size()));
}

QString finished(const std::string& toolID, int count) {
    const ToolDefinition* tool = ToolCatalog::definition(toolID);
    if (tool == nullptr) return QCoreApplication::translate("Texts", "%n file(s)", nullptr, count);
    return counted(tool->panel.words.done, count);
}

QString example(const JobOrder& order, const JobPlan& plan) {
    if (order.files.empty() || plan.items.empty()) return {};
    const auto* placement = std::get_if<Placement>(&plan.items.front());
    if (placement == nullptr) return {};
    const auto from = order.files.front().url.path(), to = placement->target.path();
    const bool isNext = from.parent_path() == to.parent_path();
    const QString target = isNext ? ownName(placement->target) : place(to);
    const QString source = order.files.size() == 1 || plan.items.size() > 1
                               ? name(from.filename())
                               : QCoreApplication::translate("Texts", "%n file(s)", nullptr,
                                                             static_cast<int>(order.files.size()));
    return QStringLiteral("%1 → %2").arg(source, target);
}

}  // namespace tamble::texts
