#include "shell/FrmAbout.h"

#include <QVBoxLayout>

#include "platform/forms/Desktop.h"
#include "shell/banner.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmAbout> frmAbout;

FrmAbout::FrmAbout()
    : Form(QStringLiteral("About ")),
      Picture1(content()),
      lblVersion(content()),
      Label3(content(), QStringLiteral("Visit our web site")),
      Label5(content(), QStringLiteral("Write to us")),
      cmdOK(content(), QStringLiteral("OK")) {
    layOut();
    on(Label3.Click, &FrmAbout::Label3_Click);
    on(Label5.Click, &FrmAbout::Label5_Click);
    on(cmdOK.Click, &FrmAbout::cmdOK_Click);
}

void FrmAbout::layOut() {
    Picture1.setPainting(paintBanner);
    Picture1.setAccessibleName(QStringLiteral("Lyrebrook"));
    Picture1.widget()->setFixedSize(360, 140);
    lblVersion.setAlignment(Qt::AlignCenter);
    Label3.makeLink();
    Label3.setAlignment(Qt::AlignCenter);
    Label5.makeLink();
    Label5.setAlignment(Qt::AlignCenter);
    cmdOK.setLook(Look::primary);

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(24, 24, 24, 20);
    column->setSpacing(12);
    column->addWidget(Picture1);
    column->addWidget(lblVersion);
    column->addWidget(Label3, 0, Qt::AlignHCenter);
    column->addWidget(Label5, 0, Qt::AlignHCenter);
    column->addSpacing(6);
    column->addWidget(cmdOK, 0, Qt::AlignHCenter);
}

void FrmAbout::Form_Load() {
    lblVersion.setCaption(gVersion);
}

void FrmAbout::Label3_Click() {
    desktop().openExternally(gWebSiteUrl);
}

void FrmAbout::Label5_Click() {
    desktop().openExternally(gContactUrl);
}

void FrmAbout::cmdOK_Click() {
    frmAbout.Unload();
}

}  // namespace lyrebrook
