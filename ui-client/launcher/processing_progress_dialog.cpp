#include "processing_progress_dialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QFont>
#include <QIcon>

#include "drift-service.h"
#include "strtable.h"

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    QFont font(QStringLiteral("Arial"));
    const ustring icon_path = Service::GetRootDriftwellResourceInstallPath() + "/images/ico_72_driftwell.png";
    setWindowTitle(StrTable::LoadStr(StrTable::kIdAppName));
    // A missing icon file just leaves the window without an icon.
    setWindowIcon(QIcon(QFile::decodeName(icon_path.c_str())));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kIdPreparing));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    // The later call wins: window-modal.
    setWindowModality(Qt::WindowModal);
    setStyleSheet(
        QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } "));
}

void ProcessingProgressDialog::reject()
{
    // Escape ends here. Hiding the only window would end the event loop (and
    // with it the launcher) half-way through an extraction.
}

void ProcessingProgressDialog::closeEvent(QCloseEvent* event)
{
    // Not QProgressDialog's: it would emit canceled(), which hides the dialog.
    event->ignore();
}
