#pragma once

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <optional>

#include "democd/FrmDemoCD.h"
#include "shell/FrmIntro.h"
#include "support/CrankedStudio.h"

namespace lyrebrook {

/// The wizard in a program that can be started anew over the same folder, with small page templates of the test's own.
class WizardDesk : public testing::Test {
  protected:
    WizardDesk() {
        startProgram();
        for (const char* page : {"index.htm", "music.htm", "photos.htm", "contact.htm"}) {
            QFile::copy(testData("templates/") + QString::fromLatin1(page),
                        path("templates/cdRedPlayer/") + QString::fromLatin1(page));
        }
    }

    void startProgram() {
        studio_.reset();
        studio_.emplace(folder_.path());
        frmIntro.Show();
        frmIntro->lblStep5.Click.fire();
    }

    ScriptedDesktop& desk() { return studio_->desk(); }
    QString path(const char* relative) const { return folder_.filePath(QString::fromUtf8(relative)); }
    static QString testData(const char* relative) {
        return QStringLiteral(DEMOCD_TEST_DATA "/") + QString::fromLatin1(relative);
    }

    static QByteArray bytesOf(const QString& file) {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString();
        return opened.readAll();
    }
    QString holding(const char* relative, const QByteArray& bytes) const {
        QFile file(path(relative));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << relative;
        file.write(bytes);
        return file.fileName();
    }
    QStringList namesIn(const char* folder) const {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void chooseSong(int index, const QString& file) {
        desk().willChoose(file);
        frmDemoCD->cmdOpenSong[index].setValue(true);
    }
    void choosePhoto(int index, const QString& file) {
        desk().willChoose(file);
        frmDemoCD->cmdOpenPhoto[index].setValue(true);
    }

    /// The least that can be finalized.
    static void fillRequired() {
        frmDemoCD->comTitles.setText(QStringLiteral("My Demo"));
        for (TextBox* box : {&frmDemoCD->txtName, &frmDemoCD->txtAge, &frmDemoCD->txtCountry, &frmDemoCD->txtOwner,
                             &frmDemoCD->txtCV}) {
            box->setText(QStringLiteral("x"));
        }
    }

    static void finalize() { frmDemoCD->cmdCreate.setValue(true); }

    /// What was said while `action` ran and every box was answered with OK.
    QStringList saidDuring(int boxes, const std::function<void()>& action) {
        for (int i = 0; i < boxes; ++i) desk().willAnswer(vbOK);
        action();
        QStringList texts;
        for (const Box& box : desk().takeBoxes()) {
            texts << box.text;
            EXPECT_EQ(box, Box{box.text}) << "a plain box";
        }
        return texts;
    }

    static bool stepIsDone() { return frmIntro->picStatusY[4].standsAbove(frmIntro->picStatusN[4]); }

  private:
    QTemporaryDir folder_;
    std::optional<CrankedStudio> studio_;
};

}  // namespace lyrebrook
