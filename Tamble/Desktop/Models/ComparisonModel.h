#pragma once

#include <Tamble/Desktop/Models/ToolModel.h>
#include <Tamble/Desktop/Pictures/FilePictures.h>

namespace tamble {

/// One file of the open tool before and after: its real result, made in a private place.
class ComparisonModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(int row READ row WRITE setRow NOTIFY changed)
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString original READ original NOTIFY changed)
    Q_PROPERTY(QString originalText READ originalText NOTIFY changed)
    Q_PROPERTY(QString result READ result NOTIFY changed)
    Q_PROPERTY(QString resultText READ resultText NOTIFY changed)
    Q_PROPERTY(bool isSmaller READ isSmaller NOTIFY changed)
    Q_PROPERTY(QString remark READ remark NOTIFY changed)

  public:
    ComparisonModel(ToolModel& tool, std::shared_ptr<FilePictures> pictures, QObject* parent = nullptr);
    ~ComparisonModel() override;

    int row() const { return row_; }
    void setRow(int row);
    /// Whether anybody looks: otherwise nothing is made.
    bool isActive() const { return isActive_; }
    void setActive(bool active);
    bool isBusy() const { return isBusy_; }
    /// Pictures behind "image://file/"; empty when there is none.
    QString original() const;
    QString result() const;
    /// "Original · 4.2 MB".
    QString originalText() const;
    /// "WebP · 0.9 MB · 79 % smaller".
    QString resultText() const;
    bool isSmaller() const;
    /// Why there is no result: the file would be left alone, or cannot be worked on.
    QString remark() const { return remark_; }

  signals:
    void changed();

  private:
    struct Made {
        std::shared_ptr<PreviewResult> result;
        QString remark;
    };

    const InputFile* file() const;
    void invalidate();
    void begin();

    ToolModel& tool_;
    std::shared_ptr<FilePictures> pictures_;
    int row_ = 0;
    bool isActive_ = false;
    bool isBusy_ = false;
    std::shared_ptr<PreviewResult> result_;
    QString remark_;
    std::stop_source making_;
    QTimer pause_;
    QThreadPool pool_;
};

}  // namespace tamble
