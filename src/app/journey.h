#pragma once

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QWidget;

namespace parlexo {

/// Drives the program through its main job as a person would: by window titles, labels, buttons and keys.
/// It prints an account and leaves a picture of every step, so that somebody without a display, or a
/// machine, can see that the whole way works.
class Journey : public QObject {
  Q_OBJECT

 public:
  /// `user` and `password` are typed into the login dialog; the pictures go into `folder`, which is created.
  Journey(const QString& user, const QString& password, const QString& folder);

  /// Begins as soon as the event loop runs.
  void start();
  /// True when every step came about; until then, and when one failed, false.
  [[nodiscard]] bool succeeded() const { return !failed_ && next_ == steps_.size(); }

 private:
  struct Step {
    QString picture;                           ///< the picture's file name without ".png"
    QString account;                           ///< what the person sees and does
    QString window;                            ///< how the title of the window begins that must be in front
    std::function<bool(QWidget* window)> act;  ///< false when the window lacks what the person needs
  };

  void planLogin(const QString& user, const QString& password);
  void planMessage();
  void planStatus();
  void waitForWindow();
  void takeStep(QWidget* window);
  void fail(const QString& why);

  std::vector<Step> steps_;
  std::size_t next_ = 0;
  bool failed_ = false;
  QString folder_;
  QElapsedTimer waiting_;
};

}  // namespace parlexo
