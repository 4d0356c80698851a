#include <Tamble/Desktop/Models/NamesModel.h>
#include <Tamble/Desktop/Support/Background.h>
#include <Tamble/Desktop/Support/Texts.h>

namespace tamble {

NamesModel::NamesModel(ToolModel& tool, QObject* parent) : QAbstractListModel(parent), tool_(tool) {
    pool_.setMaxThreadCount(1);
    connect(&tool_, &ToolModel::changed, this, &NamesModel::refresh);
}

NamesModel::~NamesModel() {
    pool_.waitForDone();
}

void NamesModel::setActive(bool active) {
    if (active == isActive_) return;
    isActive_ = active;
    refresh();
}

void NamesModel::refresh() {
    const std::uint64_t round = ++round_;
    if (!isActive_ || !tool_.isOpen() || !tool_.session()->renames()) return take({});
    const ToolSession& session = *tool_.session();
    inBackground(
        pool_, this,
        [tool = &session.definition(), settings = session.settings(), files = session.files(),
         way = session.renameWay] {
            const ToolWork work = tool->makeWork(settings, {});
            return std::get<std::unique_ptr<FileRenamer>>(work)->plan(files, way);
        },
        [this, round](std::vector<PlannedName> names) {
            if (round == round_) take(std::move(names));
        });
}

void NamesModel::take(std::vector<PlannedName> names) {
    const bool sameRows = names.size() == names_.size();
    if (!sameRows) beginResetModel();
    names_ = std::move(names);
    problemCount_ = changeCount_ = 0;
    for (int row = 0; row < rowCount(); ++row) {
        const auto& name = names_[static_cast<std::size_t>(row)];
        problemCount_ += name.problem ? 1 : 0;
        changeCount_ += data(index(row), isSame).toBool() ? 0 : 1;
    }
    if (!sameRows) {
        endResetModel();
    } else if (!names_.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
    emit planned();
}

int NamesModel::rowCount(const QModelIndex& parent) const {
    // The files may be fewer by now than when the names were planned.
    if (parent.isValid() || !tool_.isOpen()) return 0;
    return static_cast<int>(std::min(names_.size(), tool_.session()->files().size()));
}

QVariant NamesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto at = static_cast<std::size_t>(index.row());
    const InputFile& file = tool_.session()->files()[at];
    const PlannedName& name = names_[at];
    switch (role) {
        case oldName:
            return texts::name(file.url.filename());
        case newName:
            return texts::name(name.newName);
        case problem:
            return name.problem ? texts::engine(name.problem->detail) : QString();
        case isSame:
            return file.url.filename().native() == name.newName;
        case folder:
            return texts::place(file.url.parent_path());
        default:
            return {};
    }
}

QHash<int, QByteArray> NamesModel::roleNames() const {
    return {{oldName, "oldName"},
            {newName, "newName"},
            {problem, "problem"},
            {isSame, "isSame"},
            {folder, "folder"}};
}

QString NamesModel::summary() const {
    if (names_.empty()) return {};
    const QString changes = tr("%n name(s) will change", nullptr, changeCount_);
    return problemCount_ == 0 ? changes
                              : changes + QStringLiteral(" · ") + tr("%n problem(s)", nullptr, problemCount_);
}

QString NamesModel::obstacle() const {
    if (names_.empty()) return {};
    const bool inPlace = tool_.isOpen() && tool_.session()->renameWay == RenameWay::inPlace;
    const bool wantsNumbers = std::ranges::any_of(
        names_, [](const PlannedName& name) { return name.problem && name.problem->code == "duplicate"; });
    if (inPlace && wantsNumbers && tool_.session()->settings().value("numbering", "") == "none")
        return tr("Add numbers to tell the files apart.");
    if (inPlace && problemCount_ > 0) return tr("%n name(s) can't be given yet.", nullptr, problemCount_);
    return changeCount_ == 0 ? tr("All names stay as they are so far.") : QString();
}

}  // namespace tamble
