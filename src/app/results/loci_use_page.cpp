// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/loci_use_page.h"

#include <QLabel>
#include <QVBoxLayout>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/locus_table.h"
#include "app/results/result_table.h"

namespace kaldo {

LociUsePage::LociUsePage(const FinishedAllocation& allocation, const QString& folder,
                         QWidget* parent)
    : QWidget(parent) {
  auto* hint = NewHint(nullptr);
  hint->setText(
      Tr("The locus that excludes most pairs of strangers stands first. Many homozygote "
         "mismatches, a high null allele frequency or a high error rate ask for another look at "
         "its gels."));
  auto* model = new DataTableModel(this);
  model->SetTable(LocusTable(allocation));
  auto* table = new ResultTable(Tr("What each locus is worth"));
  table->setObjectName(Text("LociTable"));
  table->setModel(model);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(hint);
  layout->addWidget(table, 1);
  layout->addLayout(NewTableButtons(
      *table, "Loci",
      Phrase("Copy the selected loci, or all, with their heads, to be pasted into a "
             "spreadsheet (Ctrl+C)."),
      Phrase("Save the table as it is shown (CSV)."), folder + Text("/loci.csv")));
}

}  // namespace kaldo
