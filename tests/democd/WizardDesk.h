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
        const QDir templates(testData("templates"));
        for (const QString& page : templates.entryList(QDir::Files)) {
            QFile::copy(templates.filePath(page), path("templates/cdRedPlayer/" + page));
        }
    }

    void startProgram() {
        studio_.reset();
        studio_.emplace(folder_.path());
        frmIntro.Show();
        frmIntro->lblStep5.Click.fire();
    }

    ScriptedDesktop& desk() { return studio_->desk(); }
    QString path(const QString& relative) const { return folder_.filePath(relative); }
    static QString testData(const QString& name) { return DEMOCD_TEST_DATA "/" + name; }

    static QByteArray bytesOf(const QString& file) {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString();
        return opened.readAll();
    }
    QString holding(const QString& relative, const QByteArray& bytes) const {
        QFile file(path(relative));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << relative.toStdString();
        file.write(bytes);
        return file.fileName();
    }
    QStringList namesIn(const QString& folder) const {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void choose(const ControlArray<CommandButton>& getFile, int index, const QString& file) {
        desk().willChoose(file);
        getFile[index].setValue(true);
    }

    static std::array<TextBox*, 5> required() {
        return {&frmDemoCD->txtName, &frmDemoCD->txtAge, &frmDemoCD->txtCountry, &frmDemoCD->txtOwner,
                &frmDemoCD->txtCV};
    }
    static void fillRequired() {
        frmDemoCD->comTitles.setText("My Demo");
        for (TextBox* box : required()) box->setText("x");
    }
    static void finalize() { frmDemoCD->cmdCreate.setValue(true); }

    /// What was said, in plain boxes, while `action` ran.
    QStringList saidDuring(int boxes, const std::function<void()>& action) {
        for (int i = 0; i < boxes; ++i) desk().willAnswer(vbOK);
        action();
        QStringList texts;
        for (const Box& box : desk().takeBoxes()) {
            texts << box.text;
            EXPECT_EQ(box, Box{box.text});
        }
        return texts;
    }

    static bool stepIsDone() { return frmIntro->picStatusY[4].standsAbove(frmIntro->picStatusN[4]); }

  private:
    QTemporaryDir folder_;
    std::optional<CrankedStudio> studio_;
};

}  // namespace lyrebrook
