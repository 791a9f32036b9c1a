#include "support/Browser.h"

#include <signal.h>
#include <sys/prctl.h>

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QStandardPaths>
#include <memory>
#include <stdexcept>

namespace lyrebrook {
namespace {

constexpr int patience = 60000;  // milliseconds; a machine under load takes some seconds to start a browser
constexpr int widestPhone = 600;

// It opens nothing but our own pages, and neither root nor a container has a sandbox to give. The pipe is what makes a
// browser end when its driver is gone.
QJsonArray browserArguments(const QString& profile) {
    return {QStringLiteral("--headless=new"),
            QStringLiteral("--remote-debugging-pipe"),
            QStringLiteral("--no-sandbox"),
            QStringLiteral("--disable-gpu"),
            QStringLiteral("--disable-dev-shm-usage"),
            QStringLiteral("--hide-scrollbars"),
            QStringLiteral("--user-data-dir=") + profile};
}

QByteArray answerTo(QNetworkReply& reply) {
    QEventLoop loop;
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply.isFinished()) loop.exec();
    return reply.readAll();
}

}  // namespace

bool Browser::isInstalled() {
    return !QStandardPaths::findExecutable(QStringLiteral("chromium")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("chromedriver")).isEmpty();
}

Browser::Browser() {
    network_.setTransferTimeout(patience);
    startDriver();
    startSession();
}

Browser::~Browser() {
    const std::unique_ptr<QNetworkReply> reply(network_.deleteResource(QNetworkRequest(address_)));
    answerTo(*reply);  // the browser has gone by then
    driver_.terminate();
    driver_.waitForFinished();
}

void Browser::startDriver() {
    driver_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });  // a test that dies takes it along
    driver_.start(QStringLiteral("chromedriver"), {QStringLiteral("--port=0")});
    static const QRegularExpression greeting(QStringLiteral("successfully on port (\\d+)"));
    QString said;
    while (!greeting.match(said).hasMatch()) {
        if (!driver_.waitForReadyRead(patience)) throw std::runtime_error("chromedriver doesn't start");
        said += QString::fromLocal8Bit(driver_.readAllStandardOutput());
    }
    address_ = QStringLiteral("http://127.0.0.1:") + greeting.match(said).captured(1);
}

void Browser::startSession() {
    const QJsonObject wanted{
        {QStringLiteral("browserName"), QStringLiteral("chrome")},
        {QStringLiteral("goog:loggingPrefs"), QJsonObject{{QStringLiteral("browser"), QStringLiteral("ALL")}}},
        {QStringLiteral("goog:chromeOptions"),
         QJsonObject{{QStringLiteral("args"), browserArguments(profile_.path())}}},
    };
    const QJsonObject request{{QStringLiteral("capabilities"), QJsonObject{{QStringLiteral("alwaysMatch"), wanted}}}};
    const QJsonObject session = post(QStringLiteral("/session"), request).toObject();
    address_ += QStringLiteral("/session/") + session[QStringLiteral("sessionId")].toString();
}

QJsonValue Browser::post(const QString& path, const QJsonObject& body) {
    QNetworkRequest request(address_ + path);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const std::unique_ptr<QNetworkReply> reply(network_.post(request, QJsonDocument(body).toJson()));
    const QByteArray answer = answerTo(*reply);
    if (reply->error() != QNetworkReply::NoError)
        throw std::runtime_error((path.toUtf8() + ": " + answer).toStdString());
    return QJsonDocument::fromJson(answer).object()[QStringLiteral("value")];
}

QJsonValue Browser::developerCommand(const QString& command, const QJsonObject& parameters) {
    return post(QStringLiteral("/goog/cdp/execute"),
                {{QStringLiteral("cmd"), command}, {QStringLiteral("params"), parameters}});
}

void Browser::setView(QSize pixels) {
    developerCommand(QStringLiteral("Emulation.setDeviceMetricsOverride"),
                     {{QStringLiteral("width"), pixels.width()},
                      {QStringLiteral("height"), pixels.height()},
                      {QStringLiteral("deviceScaleFactor"), 1},
                      {QStringLiteral("mobile"), pixels.width() <= widestPhone}});
}

void Browser::open(const QUrl& page) {
    post(QStringLiteral("/url"), {{QStringLiteral("url"), page.toString(QUrl::FullyEncoded)}});
}

QJsonValue Browser::evaluate(const QString& body) {
    return post(QStringLiteral("/execute/sync"),
                {{QStringLiteral("script"), body}, {QStringLiteral("args"), QJsonArray()}});
}

QByteArray Browser::picture() {
    const QJsonValue answer =
        developerCommand(QStringLiteral("Page.captureScreenshot"), {{QStringLiteral("captureBeyondViewport"), true}});
    return QByteArray::fromBase64(answer[QStringLiteral("data")].toString().toLatin1());
}

QStringList Browser::takeComplaints() {
    QStringList complaints;
    const QJsonValue log = post(QStringLiteral("/se/log"), {{QStringLiteral("type"), QStringLiteral("browser")}});
    for (const auto& line : log.toArray()) complaints.append(line[QStringLiteral("message")].toString());
    return complaints;
}

}  // namespace lyrebrook
