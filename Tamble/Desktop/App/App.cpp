#include <Tamble/Desktop/App/App.h>
#include <Tamble/Desktop/App/DesktopServices.h>
#include <Tamble/Desktop/Pictures/DrawnProviders.h>
#include <Tamble/Desktop/Support/StartText.h>
#include <Tamble/Desktop/Support/Texts.h>
#include <Tamble/Model/PopularTools.h>

#include <TambleCore/Platform/StandardFolders.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tamble {

App* App::instance_ = nullptr;

App::App(QObject* parent)
    : QObject(parent),
      workers_(std::make_shared<WorkerPool>()),
      pictures_(std::make_shared<FilePictures>(std::make_shared<WorkerPool>(previewLimits()))),
      tool_(preferences_, workers_),
      comparison_(tool_, pictures_),
      names_(tool_),
      document_(tool_, pictures_),
      pages_(tool_, document_),
      signature_(tool_, document_),
      ink_(pictures_),
      job_(workers_),
      preferencesModel_(preferences_) {
    instance_ = this;
    connect(&navigator_, &Navigator::changed, this, &App::showPlace);
    connect(&intake_, &IntakeModel::found, this, &App::found);
    connect(&intake_, &IntakeModel::nothingFound, this, &App::said);
    connect(&job_, &JobModel::finished, this, &App::finished);
    connect(&tool_, &ToolModel::inputsChanged, this, [this] {
        pictures_->setPassword(tool_.isOpen() ? tool_.session()->secrets.password : std::string());
    });
    connect(&activity_, &ActivityModel::showRequested, this,
            [](const std::vector<std::filesystem::path>& files) { desktop::showInFolder(files); });
    connectSignatures();
    connect(&tool_, &ToolModel::noticeChanged, this, [this] {
        // An empty list shows it where the files would be.
        if (!tool_.notice().isEmpty() && tool_.files()->count() > 0) emit said(tool_.notice());
    });
    refreshPopular();
}

App::~App() {
    instance_ = nullptr;
}

App* App::create(QQmlEngine*, QJSEngine*) {
    QQmlEngine::setObjectOwnership(instance_, QQmlEngine::CppOwnership);
    return instance_;
}

void App::prepare(QQmlEngine& engine) {
    // The engine owns its providers.
    engine.addImageProvider(QStringLiteral("symbol"), std::make_unique<SymbolProvider>().release());
    engine.addImageProvider(QStringLiteral("shadow"), std::make_unique<ShadowProvider>().release());
    engine.addImageProvider(QStringLiteral("dashes"), std::make_unique<DashesProvider>().release());
    engine.addImageProvider(QStringLiteral("file"),
                            std::make_unique<FilePictureProvider>(pictures_).release());
}

void App::begin() {
    look_.ask();
    activity_.recover();
    // The command line may have done something meanwhile.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, &activity_,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive) activity_.reload();
            });
}

int App::toolCount() const {
    return static_cast<int>(ToolCatalog::all().size());
}

QSize App::windowSize() const {
    const auto size = preferences_.windowSize();
    return size ? QSize(size->width, size->height) : QSize(1280, 800);
}

void App::take(const QList<QUrl>& urls) {
    if (job_.isRunning()) {
        emit said(tr("A job is running. Drop these once it is done."));
        return;
    }
    // What was worked on is done with.
    if (navigator_.screen() == Navigator::Done) intake_.clear();
    intake_.add(urls);
}

void App::paste() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data != nullptr && data->hasUrls()) {
        take(data->urls());
    } else {
        emit said(tr("There are no files to paste. Copy some in the file manager first."));
    }
}

void App::found(const std::vector<InputFile>& files) {
    if (navigator_.screen() == Navigator::Tool) {
        tool_.add(files);
    } else {
        navigator_.open(Navigator::Drop);
    }
}

void App::openTool(const QString& toolID) {
    const ToolInfo* tool = ToolCatalog::withID(toolID.toStdString());
    if (tool == nullptr) return;
    const std::string reason = ToolCatalog::unavailableReason(tool->id);
    if (!reason.empty()) {
        emit said(texts::engine(reason));
        return;
    }
    tool_.open(*tool, intake_.files());
    navigator_.open(Navigator::Tool);
}

void App::choose(const QString& kind, const QUrl& start, const QJSValue& take) {
    emit choiceRequested(kind, start.isEmpty() ? urlOf(folders::home()) : start, take);
}

void App::startOver() {
    intake_.clear();
    tool_.close();
    result_.clear();
    pictures_->clear();
    navigator_.open(Navigator::Home);
}

void App::startJob() {
    if (!tool_.canStart() || job_.isRunning()) return;
    jobTool_ = &tool_.session()->info();
    job_.start(tool_.order(preferences_.atOnce()), texts::working(*tool_.session()), tool_.category());
    navigator_.open(Navigator::Work);
}

void App::finished(const std::shared_ptr<FinishedJob>& job) {
    result_.show(*job, *jobTool_);
    activity_.reload();
    refreshPopular();
    if (quitsAfterJob_) return QCoreApplication::quit();
    if (job->result.wasCancelled) {
        navigator_.back();
        emit said(tr("Stopped. Nothing was saved."));
        return;
    }
    navigator_.replace(Navigator::Done);
    if (QGuiApplication::applicationState() != Qt::ApplicationActive && preferences_.notifyWhenDone())
        desktop::notify(result_.title(), result_.subtitle());
}

void App::useResults() {
    const auto outputs = result_.outputs();
    startOver();
    intake_.add(outputs);
}

void App::tryAgain() {
    const auto files = result_.failedFiles();
    if (files.empty() || !tool_.isOpen()) return;
    intake_.replace(files);
    tool_.session()->removeAll();
    tool_.add(files);
    navigator_.back();
}

void App::showResults() {
    desktop::showInFolder(result_.outputs());
}

void App::rememberWindow(int width, int height, bool isMaximized) {
    try {
        preferences_.setWindowSize({width, height, isMaximized});
    } catch (const std::filesystem::filesystem_error&) {
        // It opens in the usual size then.
    }
}

void App::quitAfterJob() {
    quitsAfterJob_ = true;
    job_.cancel();
    if (!job_.isRunning()) QCoreApplication::quit();
}

void App::connectSignatures() {
    connect(&ink_, &InkModel::made, this,
            [this](const std::vector<std::byte>& png, const std::vector<InkStroke>& strokes) {
                signature_.place(png);
                if (ink_.keeps()) savedSignatures_.add(png, strokes);
            });
    connect(&savedSignatures_, &SavedSignaturesModel::chosen, &signature_, &SignatureModel::place);
    connect(&savedSignatures_, &SavedSignaturesModel::failed, this, &App::said);
    connect(&ink_, &InkModel::failed, this, &App::said);
}

void App::showPlace() {
    // A job may have renamed or replaced what was dropped.
    if (navigator_.screen() == Navigator::Tool) tool_.removeGone();
    if (navigator_.screen() == Navigator::Drop) intake_.removeGone();
    if (navigator_.screen() != Navigator::Category) return;
    std::vector<ToolListModel::Entry> entries;
    for (const ToolInfo& tool : ToolCatalog::all()) {
        if (navigator_.category().isEmpty() || navigator_.category() == categoryName(tool.category))
            entries.push_back({&tool});
    }
    categoryTools_.setEntries(std::move(entries));
}

void App::refreshPopular() {
    const auto tools = popularTools(preferences_.toolUses(), std::chrono::system_clock::now());
    std::vector<ToolListModel::Entry> entries;
    for (const ToolInfo* tool : tools) entries.push_back({tool});
    popular_.setEntries(std::move(entries));
    search_.setPopular(tools);
}

}  // namespace tamble
