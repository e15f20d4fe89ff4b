#pragma once

#include "controls/ListWindow.h"
#include "esmm/EsmmImport.h"

class ValueLabel;

// "e-SMM Aktar": the e-SMMs of the portal brought into the books. The user picks XML files, ZIP
// files or a folder; every document found is listed with its amounts and status, and
// " Aktar (F5) " posts the new ones, each exactly once. The list and the counts stay.
class EsmmImportScreen : public ListWindow
{
    Q_OBJECT
public:
    explicit EsmmImportScreen(QWidget *parent = nullptr);

    // Reads the documents under the paths into the list (what the file dialogs pick).
    void addPaths(const QStringList &paths);
    void post();

private:
    void pickFiles();
    void pickFolder();
    void showRows();

    EsmmImport m_import;
    ValueLabel *m_counts;
};
