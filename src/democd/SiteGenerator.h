#pragma once

#include <QString>
#include <functional>

#include "democd/Workset.h"

namespace lyrebrook {

/// Makes the four pages of a demo CD from the four templates of the same names, by replacing placeholders in a fixed
/// order. What a person typed goes in as it stands, and a placeholder spelled in it may be replaced in its turn.
///
/// Both folders end in a separator. A file that fails is told to the person and the others still come out: a template
/// that can't be read counts as empty, a page that can't be written stays as it was.
class SiteGenerator {
  public:
    using Tell = std::function<void(const QString& message)>;

    SiteGenerator(const QString& templateFolder, const QString& siteFolder, Tell tell);

    void createSite(const Workset& workset, const WorksetHtml& html) const;

  private:
    QString readTextFile(const QString& path) const;
    void writeTextFile(const QString& text, const QString& path) const;

    QString templateFolder_;
    QString siteFolder_;
    Tell tell_;
};

}  // namespace lyrebrook
