#pragma once

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

// " Yazıcı Ayarları" (yzcsetup): shows the print-settings record as the printing screen preset
// it and lets the user change the printer, the kind of output, lines, copies, orientation,
// headings and title; without a printer, a PDF file is the only kind. "&Tamam" confirms, " Önizleme " confirms for a
// preview, "&Vazgeç" and Esc cancel. Up picks dot-matrix output and Down graphic output from any control.
class PrinterSetupDialog : public QDialog
{
    Q_OBJECT
public:
    explicit PrinterSetupDialog(QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showRecord();
    void kindChosen();
    void choosePrinter();
    void confirm(bool preview);

    QLabel *m_printer;
    QLabel *m_pdfOnly;
    QPushButton *m_choosePrinter;
    QRadioButton *m_dotMatrix;
    QRadioButton *m_graphic;
    QRadioButton *m_pdf;
    QLineEdit *m_pdfFile;
    QComboBox *m_lines;
    QComboBox *m_copies;
    QRadioButton *m_portrait;
    QRadioButton *m_landscape;
    QCheckBox *m_headings[4];
    QLineEdit *m_title;
    QPushButton *m_ok;
    QPushButton *m_preview;
    QPushButton *m_cancel;
};

// Shows the dialog modally; true when the user confirmed.
bool ShowPrinterSetup(QWidget *parent = nullptr);
