#pragma once

#include <Tamble/Desktop/Pictures/FilePictures.h>
#include <Tamble/Model/InkPen.h>

#include <QColor>
#include <QElapsedTimer>
#include <QtQmlIntegration>

namespace tamble {

/// A signature that is being drawn, or taken from a picture.
class InkModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to the application.")
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool isBlue READ isBlue WRITE setBlue NOTIFY changed)
    Q_PROPERTY(bool keeps READ keeps WRITE setKeeps NOTIFY changed)

  public:
    explicit InkModel(std::shared_ptr<FilePictures> pictures, QObject* parent = nullptr);
    ~InkModel() override;

    bool isEmpty() const { return strokes_.empty(); }
    /// While a picture is read.
    bool isBusy() const { return isBusy_; }
    bool isBlue() const { return isBlue_; }
    void setBlue(bool blue);
    /// Whether signatures are kept for the next time.
    bool keeps() const { return keeps_; }
    void setKeeps(bool keeps);
    QColor color() const;
    /// With the one that is being drawn.
    const std::vector<InkStroke>& strokes() const { return strokes_; }

    /// Shares of the pad's width.
    Q_INVOKABLE void begin(double x, double y);
    Q_INVOKABLE void extend(double x, double y);
    Q_INVOKABLE void end(double x, double y);
    Q_INVOKABLE void undo();
    Q_INVOKABLE void clear();
    /// Takes what is drawn, and clears the pad.
    Q_INVOKABLE void use();
    /// Takes a photographed or scanned one.
    Q_INVOKABLE void read(const QUrl& picture);

  signals:
    void changed();
    void made(const std::vector<std::byte>& png, const std::vector<InkStroke>& strokes);
    /// Why there is none.
    void failed(const QString& sentence);

  private:
    struct Read {
        QImage picture;
        QString sentence;
    };

    double now() const { return static_cast<double>(clock_.elapsed()) / 1000; }
    void took(const Read& read);

    std::shared_ptr<FilePictures> pictures_;
    std::vector<InkStroke> strokes_;
    InkPen pen_;
    bool isBlue_ = false;
    bool keeps_ = true;
    bool isBusy_ = false;
    QElapsedTimer clock_;
    std::stop_source reading_;
    QThreadPool pool_;
};

}  // namespace tamble
