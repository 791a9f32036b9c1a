#pragma once

#include <QWidget>
#include <cstdint>

#include "platform/help/HelpFile.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QUrl;

namespace lyrebrook {

/// The window of the help: search and contents at the left, the chosen topic at the right. Deletes itself when closed
/// and doesn't keep the program running. The search narrows the contents to the topics that hold all of its words and
/// marks them in the text. Ctrl+F goes to the search, Escape empties it and then closes the window.
class HelpWindow : public QWidget {
  public:
    explicit HelpWindow(const HelpFile& help);

    void open(const HelpFile& help);
    void showContents();
    void showTopic(std::int32_t number);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* createContents();
    void createText();
    void connectSignals();
    void select(std::size_t place);
    void showSelected();
    void search();
    int hideTopicsWithout(const QStringList& words);
    void markWords();
    void followLink(const QUrl& link);

    HelpFile help_;
    QLineEdit* search_;
    QListWidget* contents_;
    QLabel* found_;
    QTextBrowser* text_;
};

}  // namespace lyrebrook
