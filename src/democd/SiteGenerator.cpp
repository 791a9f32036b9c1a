#include "democd/SiteGenerator.h"

#include <array>

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystemObject.h"

namespace lyrebrook {
namespace {

const std::array pageNames = {QStringLiteral("index.htm"), QStringLiteral("music.htm"), QStringLiteral("photos.htm"),
                              QStringLiteral("contact.htm")};

const QString songBlock = QStringLiteral(R"(<p align="left"><font face="Arial" size="2"> )"
                                         R"(Title:: &nbsp;<b>|*SongTitle*|</b><br> )"
                                         R"(&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;::&nbsp;&nbsp;)"
                                         R"(<b><a href="demo1/|*SongFilePath*|">play >></a></b>)"
                                         R"(</font></p><br> )");

const QString photoBlock =
    QStringLiteral(R"(<!--PHOTO-->)"
                   R"(<br>)"
                   R"(<hr size="1" align="left">)"
                   R"(<div align="left">)"
                   R"(  <table border="0" cellpadding="4" width="500">)"
                   R"(    <tr>)"
                   R"(      <td align="left" width="360"><img border="2" src="demo1/|*PhotoPath*|" ></td>)"
                   R"(      <td align="left" valign="top"><i><font face="Arial" size="2">|*PhotoDesc*|</font></i></p>)"
                   R"(      </td>)"
                   R"(    </tr>)"
                   R"(  </table>)"
                   R"(</div>)");

/// A text in which placeholders are replaced, one after the other.
class Page {
  public:
    explicit Page(const QString& text) : text_(text) {}

    Page& put(const char* placeholder, const QString& value) {
        text_.replace(QStringLiteral("|*") + QString::fromLatin1(placeholder) + QStringLiteral("*|"), value);
        return *this;
    }
    const QString& text() const { return text_; }

  private:
    QString text_;
};

QString songBlocks(const Workset& workset) {
    QString blocks;
    for (const WorksetSong& song : workset.songs) {
        if (!song.file.isSelected()) continue;
        blocks += Page(songBlock).put("SongFilePath", song.file.name).put("SongTitle", song.title).text();
    }
    return blocks;
}

QString photoBlocks(const Workset& workset, const WorksetHtml& html) {
    QString blocks;
    for (std::size_t i = 0; i < workset.photos.size(); ++i) {
        const MediaFile& file = workset.photos[i].file;
        if (!file.isSelected()) continue;
        blocks += Page(photoBlock).put("PhotoPath", file.name).put("PhotoDesc", html.photoDescHtml[i]).text();
    }
    return blocks;
}

}  // namespace

SiteGenerator::SiteGenerator(const QString& templateFolder, const QString& siteFolder, Tell tell)
    : templateFolder_(templateFolder), siteFolder_(siteFolder), tell_(std::move(tell)) {}

void SiteGenerator::createSite(const Workset& workset, const WorksetHtml& html) const {
    std::array<QString, pageNames.size()> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = readTextFile(templateFolder_ + pageNames[i]);
    auto& [index, music, photos, contact] = texts;

    index = Page(index)
                .put("ArtistName", workset.artistName)
                .put("Age", workset.age)
                .put("Country", workset.country)
                .put("CV", html.cvHtml)
                .put("CopyrightOwner", workset.owner)
                .text();
    music = Page(music)
                .put("AllMusicCode", songBlocks(workset))
                .put("ArtistName", workset.artistName)
                .put("CopyrightOwner", workset.owner)
                .text();
    photos = Page(photos)
                 .put("AllPhotoCode", photoBlocks(workset, html))
                 .put("ArtistName", workset.artistName)
                 .put("CopyrightOwner", workset.owner)
                 .text();
    contact = Page(contact)
                  .put("ArtistName", workset.artistName)
                  .put("Postal", html.postalHtml)
                  .put("Phone", workset.phone)
                  .put("Email", workset.email)
                  .put("CopyrightOwner", workset.owner)
                  .text();

    for (std::size_t i = 0; i < texts.size(); ++i) writeTextFile(texts[i], siteFolder_ + pageNames[i]);
}

QString SiteGenerator::readTextFile(const QString& path) const {
    try {
        TextStream stream = FileSystemObject().OpenTextFile(path, IOMode::forReading);
        QString text;
        while (!stream.AtEndOfStream()) text += stream.ReadAll();
        return text;
    } catch (const RuntimeError& error) {
        tell_(QStringLiteral("Template file not found. Error: ") + QString::fromStdString(error.description()) +
              QStringLiteral("\r\nFilepath: ") + path);
        return {};
    }
}

void SiteGenerator::writeTextFile(const QString& text, const QString& path) const {
    try {
        // A page can be made again, so nobody waits for the disk.
        TextStream stream = TextStream::openForWriting(path, ReplacingFile::Flush::leaveToSystem);
        stream.Write(text);
        stream.Close();
    } catch (const RuntimeError& error) {
        tell_(QStringLiteral("File can not be saved!\r\n\r\nCause: ") + QString::fromStdString(error.description()) +
              QStringLiteral(" | File giving error: ") + path +
              QStringLiteral("\r\n\r\nSolution: It is possible that the files open in your browser. Close the browser "
                             "window and try again!"));
    }
}

}  // namespace lyrebrook
