// A second program for the data-file tests: starts the books in a folder as the program does
// (and, asked to, posts account transactions one by one), so that a test can kill it at any
// moment. Every message and every committed posting is written to standard output at once.
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/OpenBooks.h"
#include "books/Postings.h"

#include <QCoreApplication>
#include <QDate>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() < 2)
        return 2;
    Message::setResponder([](Message::Kind, const QString &text) {
        std::printf("mesaj %s\n", qPrintable(text));
        std::fflush(stdout);
        return false;
    });
    if (!OpenBooks(arguments.at(1)))
        return 1;
    std::printf("acildi\n");
    std::fflush(stdout);
    const int postings = arguments.size() > 2 ? arguments.at(2).toInt() : 0;
    for (int i = 1; i <= postings; ++i) {
        const AccountPosting posting { QStringLiteral("K%1").arg(i % 100), QDate(2026, 1, 1).addDays(i % 365), 1,
            QString::number(i), QStringLiteral("Tahsilat"), i % 2, Currency::fromUnits(i) };
        if (AddAccountPosting(posting) <= 0)
            return 1;
        std::printf("%d\n", i);
        std::fflush(stdout);
    }
    return 0;
}
