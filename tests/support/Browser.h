#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

namespace lyrebrook {

/// A real browser without a window: Chromium, spoken to through its driver. Both processes and the profile belong to
/// this object and go with it. Every call returns when the browser is done; std::runtime_error when it can't do it.
class Browser {
  public:
    static bool isInstalled();

    Browser();
    ~Browser();
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    /// The size of what is seen of a page, from the next one on. Up to 600 pixels it counts as a phone.
    void setView(QSize pixels);

    /// Opens a page, with its pictures and styles.
    void open(const QUrl& page);

    /// What a function with this body returns in the page; a promise is waited for.
    QJsonValue evaluate(const QString& body);

    /// The whole page as PNG, also what lies below the edge.
    QByteArray picture();

    /// What the console has complained about since it was last asked.
    QStringList takeComplaints();

  private:
    QJsonValue post(const QString& path, const QJsonObject& body);
    QJsonValue developerCommand(const QString& command, const QJsonObject& parameters);
    void startDriver();
    void startSession();

    QTemporaryDir profile_;
    QNetworkAccessManager network_;
    QProcess driver_;
    QString address_;  // of the driver, then of the session
};

}  // namespace lyrebrook
