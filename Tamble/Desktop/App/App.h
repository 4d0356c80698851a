#pragma once

#include <Tamble/Desktop/App/SystemLook.h>
#include <Tamble/Desktop/Models/ActivityModel.h>
#include <Tamble/Desktop/Models/ComparisonModel.h>
#include <Tamble/Desktop/Models/DocumentModel.h>
#include <Tamble/Desktop/Models/InkModel.h>
#include <Tamble/Desktop/Models/IntakeModel.h>
#include <Tamble/Desktop/Models/JobModel.h>
#include <Tamble/Desktop/Models/NamesModel.h>
#include <Tamble/Desktop/Models/Navigator.h>
#include <Tamble/Desktop/Models/PagesModel.h>
#include <Tamble/Desktop/Models/PreferencesModel.h>
#include <Tamble/Desktop/Models/ResultModel.h>
#include <Tamble/Desktop/Models/SavedSignaturesModel.h>
#include <Tamble/Desktop/Models/SearchModel.h>
#include <Tamble/Desktop/Models/SignatureModel.h>
#include <Tamble/Desktop/Models/ToolModel.h>
#include <Tamble/Desktop/Pictures/FilePictures.h>

#include <QJSValue>
#include <QQmlEngine>

namespace tamble {

/// What the window shows and asks: the models, and what leads from one screen to the next.
class App : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(tamble::Navigator* navigator READ navigator CONSTANT)
    Q_PROPERTY(tamble::IntakeModel* intake READ intake CONSTANT)
    Q_PROPERTY(tamble::ToolModel* tool READ tool CONSTANT)
    Q_PROPERTY(tamble::ComparisonModel* comparison READ comparison CONSTANT)
    Q_PROPERTY(tamble::NamesModel* names READ names CONSTANT)
    Q_PROPERTY(tamble::DocumentModel* document READ document CONSTANT)
    Q_PROPERTY(tamble::PagesModel* pages READ pages CONSTANT)
    Q_PROPERTY(tamble::SignatureModel* signature READ signature CONSTANT)
    Q_PROPERTY(tamble::SavedSignaturesModel* savedSignatures READ savedSignatures CONSTANT)
    Q_PROPERTY(tamble::InkModel* ink READ ink CONSTANT)
    Q_PROPERTY(tamble::JobModel* job READ job CONSTANT)
    Q_PROPERTY(tamble::ResultModel* result READ result CONSTANT)
    Q_PROPERTY(tamble::ActivityModel* activity READ activity CONSTANT)
    Q_PROPERTY(tamble::PreferencesModel* preferences READ preferences CONSTANT)
    Q_PROPERTY(tamble::SearchModel* search READ search CONSTANT)
    Q_PROPERTY(tamble::SystemLook* look READ look CONSTANT)
    Q_PROPERTY(tamble::ToolListModel* popular READ popular CONSTANT)
    Q_PROPERTY(tamble::ToolListModel* categoryTools READ categoryTools CONSTANT)
    Q_PROPERTY(int toolCount READ toolCount CONSTANT)
    Q_PROPERTY(QSize windowSize READ windowSize CONSTANT)

  public:
    // Not without an argument: the toolkit would make an App of its own.
    explicit App(QObject* parent);
    ~App() override;

    /// The one of the program, for the engine of the window.
    static App* create(QQmlEngine* engine, QJSEngine* scripts);

    /// What an engine needs before it loads the window.
    void prepare(QQmlEngine& engine);
    /// What can wait until the window is there.
    void begin();

    Navigator* navigator() { return &navigator_; }
    IntakeModel* intake() { return &intake_; }
    ToolModel* tool() { return &tool_; }
    ComparisonModel* comparison() { return &comparison_; }
    NamesModel* names() { return &names_; }
    DocumentModel* document() { return &document_; }
    PagesModel* pages() { return &pages_; }
    SignatureModel* signature() { return &signature_; }
    SavedSignaturesModel* savedSignatures() { return &savedSignatures_; }
    InkModel* ink() { return &ink_; }
    JobModel* job() { return &job_; }
    ResultModel* result() { return &result_; }
    ActivityModel* activity() { return &activity_; }
    PreferencesModel* preferences() { return &preferencesModel_; }
    SearchModel* search() { return &search_; }
    SystemLook* look() { return &look_; }
    ToolListModel* popular() { return &popular_; }
    ToolListModel* categoryTools() { return &categoryTools_; }
    int toolCount() const;
    QSize windowSize() const;

    /// Files that were dropped, opened or handed over, wherever people are.
    Q_INVOKABLE void take(const QList<QUrl>& urls);
    Q_INVOKABLE void paste();
    /// Opens the tool with what was dropped.
    Q_INVOKABLE void openTool(const QString& toolID);
    /// Lets people choose "files", a "file" or a "folder", beginning at `start` or at home; `take` is called
    /// with a list of URLs unless they change their mind.
    Q_INVOKABLE void choose(const QString& kind, const QUrl& start, const QJSValue& take);
    Q_INVOKABLE void startOver();
    Q_INVOKABLE void startJob();
    Q_INVOKABLE void useResults();
    Q_INVOKABLE void tryAgain();
    Q_INVOKABLE void showResults();
    Q_INVOKABLE void rememberWindow(int width, int height, bool isMaximized);
    /// Ends the program once the job that runs has ended.
    Q_INVOKABLE void quitAfterJob();

  signals:
    /// A short message for the foot of the window.
    void said(const QString& sentence);
    void choiceRequested(const QString& kind, const QUrl& start, const QJSValue& take);
    /// Somebody started the program again: the window comes to the front.
    void raiseRequested();

  private:
    void found(const std::vector<InputFile>& files);
    void finished(const std::shared_ptr<FinishedJob>& job);
    void connectSignatures();
    void showPlace();
    void refreshPopular();

    static App* instance_;

    PreferencesStore preferences_;
    std::shared_ptr<WorkerPool> workers_;
    std::shared_ptr<FilePictures> pictures_;
    Navigator navigator_;
    SystemLook look_;
    IntakeModel intake_;
    ToolModel tool_;
    ComparisonModel comparison_;
    NamesModel names_;
    DocumentModel document_;
    PagesModel pages_;
    SignatureModel signature_;
    SavedSignaturesModel savedSignatures_;
    InkModel ink_;
    JobModel job_;
    ResultModel result_;
    ActivityModel activity_;
    PreferencesModel preferencesModel_;
    SearchModel search_;
    ToolListModel popular_;
    ToolListModel categoryTools_;
    const ToolInfo* jobTool_ = nullptr;
    bool quitsAfterJob_ = false;
};

}  // namespace tamble
