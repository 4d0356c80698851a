#pragma once

#include <Tamble/Desktop/Models/ToolModel.h>
#include <Tamble/Desktop/Pictures/FilePictures.h>

namespace tamble {

/// The one PDF that an editor of pages shows, as far as it can be opened.
class DocumentModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY changed)
    Q_PROPERTY(State state READ state NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY changed)

  public:
    /// Not exactly one PDF; one that is being opened, can be shown, wants a password, cannot be opened.
    enum State { Nothing, Opening, Ready, Locked, Failed };
    Q_ENUM(State)

    DocumentModel(ToolModel& tool, std::shared_ptr<FilePictures> pictures, QObject* parent = nullptr);
    ~DocumentModel() override;

    /// Whether anybody looks: otherwise nothing is opened.
    bool isActive() const { return isActive_; }
    void setActive(bool active);
    State state() const { return state_; }
    /// Why it cannot be shown.
    QString sentence() const { return sentence_; }
    int pageCount() const { return static_cast<int>(pages_.size()); }
    const std::vector<PreviewPage>& pages() const { return pages_; }

    /// Behind "image://file/"; the page is counted from 0.
    Q_INVOKABLE QString picture(int page) const;
    /// Width by height.
    Q_INVOKABLE double ratio(int page) const;
    Q_INVOKABLE void unlock(const QString& password);

  signals:
    void changed();
    /// It is another document, or none, or the same one in a new tool: what was done to its pages is void.
    void replaced();

  private:
    struct Opened {
        std::vector<PreviewPage> pages;
        State state = Ready;
        QString sentence;
    };
    /// What it was opened for.
    struct Source {
        int opening = 0;
        std::filesystem::path file;
        std::optional<FileFingerprint> fingerprint;
        std::string password;
        bool operator==(const Source&) const = default;
    };

    Source source() const;
    void look();
    void show(Opened opened);

    ToolModel& tool_;
    std::shared_ptr<FilePictures> pictures_;
    bool isActive_ = false;
    int openings_ = 0;
    State state_ = Nothing;
    QString sentence_;
    std::vector<PreviewPage> pages_;
    Source source_;
    std::stop_source opening_;
    QThreadPool pool_;
};

}  // namespace tamble
