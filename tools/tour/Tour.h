#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include "platform/forms/Form.h"
#include "support/CrankedStudio.h"

namespace lyrebrook {

/// One walk through the program as a person would take it: the desk that it sits at, the pictures that it takes, and
/// the report that it writes. A step that doesn't go as it should ends the walk with an exception.
class Tour {
  public:
    /// `folder` holds the program's folder, "screens", and the report.
    explicit Tour(const QString& folder);

    CrankedStudio& studio() { return studio_; }
    ScriptedDesktop& desk() { return studio_.desk(); }

    /// A picture of a form as it stands: screens/NN-name.png, numbered in the order of the walk, and the same in
    /// screens/200 as it is at 200 percent.
    void picture(Form& form, const QString& name);

    /// The same of something that made its own picture.
    void picture(const QByteArray& png, const QString& name);

    /// A line of the report, on standard output too.
    void say(const QString& line);

    /// A line about a wave file of ours: path below the folder, length and peak. It must exist and not be silent.
    void sayWave(const QString& path);

    /// Ends the walk unless `holds`.
    void require(bool holds, const QString& expectation);

    /// Paths of the report are told from here.
    QString relative(const QString& path) const;

  private:
    QString nextPicture(const QString& name);

    QString folder_;
    QString screens_;
    CrankedStudio studio_;
    QFile report_;
    int pictures_ = 0;
};

}  // namespace lyrebrook
