#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "democd/MediaFolder.h"
#include "democd/SiteGenerator.h"
#include "platform/files/App.h"
#include "support/Browser.h"

namespace lyrebrook {
namespace {

constexpr QSize desk{1280, 800};
constexpr QSize phone{390, 844};

const QString shippedData = QStringLiteral(SHIPPED_DATA);
const QString shippedTemplates = QStringLiteral(DATA_FOLDER "/templates/cdRedPlayer/");
const QString exampleSite = shippedData + QStringLiteral("/DemoCD_Example/");
const QString exampleMedia = exampleSite + QStringLiteral("Demo1/");

/// The four pages in one browser, which all tests share, for it takes seconds to start.
class SiteInBrowser : public testing::Test {
  protected:
    static void SetUpTestSuite() { browser_ = std::make_unique<Browser>(); }
    static void TearDownTestSuite() { browser_.reset(); }
    static Browser& browser() { return *browser_; }

    static void open(const QString& site, const char* page) {
        browser().open(QUrl::fromLocalFile(site + QString::fromLatin1(page)));
    }

    /// Each page of a site is whole: nothing is missing, comes from elsewhere, or sticks out at the side.
    static void expectWhole(const QString& site, QSize view) {
        browser().setView(view);
        for (const char* page : {"index.htm", "music.htm", "photos.htm", "contact.htm"}) {
            SCOPED_TRACE(testing::Message() << page << " at " << view.width());
            open(site, page);
            expectLinksLead(site);
            EXPECT_TRUE(browser().evaluate(everyPictureShows).toBool());
            EXPECT_LE(browser().evaluate(pageWidth).toInt(), view.width());
            EXPECT_TRUE(browser().evaluate(QStringLiteral("return document.documentElement.lang !== ''")).toBool());
            EXPECT_EQ(browser().takeComplaints().join(u'\n').toStdString(), "");
        }
    }

    /// What a person reads between the head and the foot of a page.
    static std::string words(const QString& site, const char* page) {
        open(site, page);
        const QJsonValue text = browser().evaluate(QStringLiteral("return document.querySelector('main').innerText"));
        return text.toString().simplified().toStdString();
    }

  private:
    static void expectLinksLead(const QString& site) {
        const QJsonArray links = browser().evaluate(everythingReferred).toArray();
        ASSERT_GE(links.size(), 6);  // four pages, the style and the icon
        for (const auto& link : links) {
            const QUrl url(link.toString());
            if (url.scheme() == QStringLiteral("mailto")) continue;
            EXPECT_TRUE(url.toLocalFile().startsWith(site) && QFileInfo(url.toLocalFile()).isFile())
                << link.toString().toStdString();
        }
    }

    inline static const QString everythingReferred =
        QStringLiteral("return [...document.querySelectorAll('[href], [src]')].map(each => each.href || each.src)");
    inline static const QString everyPictureShows =
        QStringLiteral("return [...document.images].every(each => each.naturalWidth > 0 && each.offsetWidth > 0)");
    inline static const QString pageWidth = QStringLiteral("return document.documentElement.scrollWidth");

    inline static std::unique_ptr<Browser> browser_;
};

/// Seconds of the sound that the browser's own player shows.
const QString lengthInThePlayer = QStringLiteral(
    "const player = document.querySelector('video, audio');"
    "return new Promise((tell) => {"
    "  const look = () => player.readyState > 0 && tell(player.duration);"
    "  player.addEventListener('loadedmetadata', look);"
    "  player.addEventListener('error', () => tell(-1));"
    "  look();"
    "})");

TEST_F(SiteInBrowser, EverySongOfTheExampleIsSoundThatTheBrowserPlays) {
    open(exampleSite, "music.htm");
    const QJsonArray songs =
        browser()
            .evaluate(QStringLiteral("return [...document.querySelectorAll('main a')].map(song => song.href)"))
            .toArray();
    ASSERT_EQ(songs.size(), 3);
    for (const auto& song : songs) {
        const QUrl url(song.toString());
        QProcess soxi;
        soxi.start(QStringLiteral("soxi"), {QStringLiteral("-D"), url.toLocalFile()});
        ASSERT_TRUE(soxi.waitForFinished());
        EXPECT_GT(soxi.readAllStandardOutput().toDouble(), 20) << soxi.readAllStandardError().toStdString();
        browser().open(url);
        EXPECT_GT(browser().evaluate(lengthInThePlayer).toDouble(), 20);
    }
}

/// A site made of the shipped templates, beside what else a CD gets.
class OwnSite {
  public:
    explicit OwnSite(const Workset& workset) {
        const QDir common(shippedData + QStringLiteral("/DemoCD"));
        for (const QString& name : common.entryList(QDir::Files)) QFile::copy(common.filePath(name), folder() + name);
        const auto fail = [](const QString& message) { ADD_FAILURE() << message.toStdString(); };
        SiteGenerator(shippedTemplates, folder(), fail).createSite(workset, htmlOf(workset));
        rebuildMediaFolder(folder(), workset, [] {});
    }

    QString folder() const { return place_.path() + u'/'; }

  private:
    QTemporaryDir place_;
};

TEST_F(SiteInBrowser, TheExampleIsWholeAndAPersonsCopyOfItToo) {
    expectWhole(exampleSite, desk);
    App::setPath(shippedData);
    const OwnSite copy(readWorkset(QStringLiteral(DATA_FOLDER "/projects/Demo Workset.xon")));
    expectWhole(copy.folder(), phone);
    for (const char* page : {"music.htm", "photos.htm"})
        EXPECT_EQ(words(copy.folder(), page), words(exampleSite, page));
}

TEST_F(SiteInBrowser, LongNamesAndForeignLettersKeepThePagesInShape) {
    const QString longWord(80, u'W');
    Workset workset;
    for (QString* text : {&workset.artistName, &workset.age, &workset.country, &workset.owner, &workset.cv,
                          &workset.email, &workset.phone, &workset.postal}) {
        *text = longWord;
    }
    workset.songs[0] = {longWord,
                        {QStringLiteral("Über allem & weit.wav"), exampleMedia + QStringLiteral("lantern-street.wav")}};
    workset.photos[2] = {longWord, {QStringLiteral("Größe.jpg"), exampleMedia + QStringLiteral("stage.jpg")}};
    const OwnSite site(workset);
    expectWhole(site.folder(), phone);
}

TEST_F(SiteInBrowser, WhatWasNotGivenIsLeftOut) {
    const OwnSite site(Workset{});
    EXPECT_EQ(words(site.folder(), "photos.htm"), "Photos");
    EXPECT_EQ(words(site.folder(), "contact.htm"), "Contact");
}

}  // namespace
}  // namespace lyrebrook
