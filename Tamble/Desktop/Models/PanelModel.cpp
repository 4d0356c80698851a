#include <Tamble/Desktop/Models/PanelModel.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/PanelState.h>

#include <TambleCore/Support/Settings/SettingType.h>

namespace tamble {
namespace {

QString controlName(PanelControl control) {
    switch (control) {
        case PanelControl::cards:
            return QStringLiteral("cards");
        case PanelControl::segments:
            return QStringLiteral("segments");
        case PanelControl::toggle:
            return QStringLiteral("toggle");
        case PanelControl::number:
            return QStringLiteral("number");
        case PanelControl::text:
            return QStringLiteral("text");
        case PanelControl::password:
            return QStringLiteral("password");
        case PanelControl::note:
            break;
    }
    return QStringLiteral("note");
}

const PanelChoice* firstChoice(const PanelSection& section) {
    return section.choices.empty() ? nullptr : &section.choices.front();
}

}  // namespace

PanelModel::PanelModel(QObject* parent) : QAbstractListModel(parent) {}

void PanelModel::show(ToolSession* session) {
    beginResetModel();
    session_ = session;
    rows_.clear();
    endResetModel();
    refresh();
}

void PanelModel::refresh() {
    std::vector<std::size_t> rows;
    if (session_ != nullptr) {
        const auto& sections = session_->definition().panel.sections;
        for (std::size_t i = 0; i < sections.size(); ++i) {
            if (PanelState::isShown(sections[i], session_->settings(), session_->files())) rows.push_back(i);
        }
    }
    if (rows != rows_) {
        beginResetModel();
        rows_ = std::move(rows);
        endResetModel();
    } else if (!rows_.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

int PanelModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariantList PanelModel::shown(const std::vector<PanelChoice>& list) const {
    QVariantList result;
    for (const PanelChoice& choice : list) {
        result << QVariantMap{{QStringLiteral("label"), texts::engine(choice.label)},
                              {QStringLiteral("description"), texts::engine(choice.description)},
                              {QStringLiteral("chosen"), PanelState::isChosen(choice, session_->settings())}};
    }
    return result;
}

QVariant PanelModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const PanelSection& shownSection = section(index.row());
    const PanelChoice* first = firstChoice(shownSection);
    switch (role) {
        case control:
            return controlName(shownSection.control);
        case heading:
            return texts::engine(shownSection.heading);
        case choices:
            return shown(shownSection.choices);
        case moreLabel:
            return texts::engine(shownSection.moreLabel);
        case moreChoices:
            return shown(shownSection.moreChoices);
        case label:
            return first == nullptr ? QString() : texts::engine(first->label);
        case number:
            return static_cast<int>(session_->settings().value(shownSection.setting, std::int64_t{0}));
        case lowest:
            return static_cast<int>(shownSection.range.first);
        case highest:
            return static_cast<int>(shownSection.range.second);
        case typed:
            return first == nullptr
                       ? QString::fromStdString(session_->secrets.password)
                       : QString::fromStdString(PanelState::typedText(*first, session_->settings()));
        case placeholder:
            return texts::engine(shownSection.placeholder);
        case note:
            return texts::engine(shownSection.note);
        default:
            return {};
    }
}

QHash<int, QByteArray> PanelModel::roleNames() const {
    return {{control, "control"},     {heading, "heading"},         {choices, "choices"},
            {moreLabel, "moreLabel"}, {moreChoices, "moreChoices"}, {label, "label"},
            {number, "number"},       {lowest, "lowest"},           {highest, "highest"},
            {typed, "typed"},         {placeholder, "placeholder"}, {note, "note"}};
}

const PanelSection& PanelModel::section(int row) const {
    return session_->definition().panel.sections[rows_[static_cast<std::size_t>(row)]];
}

void PanelModel::choose(int row, int choice) {
    if (row < 0 || row >= rowCount() || choice < 0) return;
    const PanelSection& chosen = section(row);
    const auto at = static_cast<std::size_t>(choice);
    if (at < chosen.choices.size()) {
        change(chosen.choices[at].changes);
    } else if (at - chosen.choices.size() < chosen.moreChoices.size()) {
        change(chosen.moreChoices[at - chosen.choices.size()].changes);
    }
}

void PanelModel::setNumber(int row, int value) {
    if (row < 0 || row >= rowCount()) return;
    const PanelSection& field = section(row);
    Json changes = Json::object();
    changes[field.setting] = std::clamp<std::int64_t>(value, field.range.first, field.range.second);
    change(changes);
}

void PanelModel::type(int row, const QString& text) {
    if (row < 0 || row >= rowCount()) return;
    const PanelSection& field = section(row);
    if (field.control == PanelControl::password) {
        session_->secrets.password = text.toStdString();
        change(Json::object());
    } else if (const PanelChoice* first = firstChoice(field)) {
        change(PanelState::typing(*first, text.toStdString(), session_->definition().defaults));
    }
}

void PanelModel::change(const Json& changes) {
    try {
        session_->change(changes);
    } catch (const SettingError&) {
        return;  // a text that is no value of the setting yet; the field keeps it until it is
    }
    refresh();
    emit changed();
}

}  // namespace tamble
