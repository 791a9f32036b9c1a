#include <QFile>

#include "steps.h"
#include "support/Browser.h"

namespace lyrebrook {

namespace {

struct View {
    QString name;
    QSize pixels;
};

void showPages(Tour& tour, Browser& browser, const View& view) {
    browser.setView(view.pixels);
    for (const char* page : {"index", "music", "photos", "contact"}) {
        const QString name = QString::fromLatin1(page);
        const QString file = tour.studio().path(QStringLiteral("DemoCD/") + name + QStringLiteral(".htm"));
        tour.require(QFile::exists(file), file + QStringLiteral(" is there"));
        browser.open(QUrl::fromLocalFile(file));
        tour.picture(browser.picture(), QStringLiteral("site-%1-%2").arg(name, view.name));
    }
}

}  // namespace

void showSite(Tour& tour) {
    if (!Browser::isInstalled()) return tour.say(QStringLiteral("site: no Chromium here, so no pictures of its pages"));
    Browser browser;
    showPages(tour, browser, {QStringLiteral("desk"), {1280, 800}});
    showPages(tour, browser, {QStringLiteral("phone"), {390, 844}});
    const QStringList complaints = browser.takeComplaints();
    tour.require(complaints.isEmpty(), QStringLiteral("a browser has nothing to say: ") + complaints.join(u'\n'));
    tour.say(QStringLiteral("site: its four pages in a browser, on a desk and on a phone"));
}

}  // namespace lyrebrook
