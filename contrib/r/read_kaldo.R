# SPDX-License-Identifier: GPL-3.0-or-later
# Reads the tables of KALDO (.tsv) with names as text, whatever they look like: 00012, T, 1e5 and an
# offspring called NA stay what they are. Figures and truths are converted, NA stands for nothing.
#
#   source("read_kaldo.R")
#   allocations <- read_kaldo("lake/Allocations.tsv")
#   parents <- read_kaldo("lake/Parents.tsv")
#   pedigree <- read_kaldo("lake/Pedigree.tsv")
#
#   # Offspring per parent, and the allocations that can be relied on one by one:
#   barplot(table(parents$offspring))
#   subset(allocations, verdict1 == "named" & p_parent1 >= 0.95)

read_kaldo <- function(file) {
  read <- utils::read.delim(file, colClasses = "character", na.strings = character(),
                            check.names = FALSE, fileEncoding = "UTF-8")
  # The individual, locus or combination of a row always has a name; the others may have none.
  always <- c("offspring", "parent", "locus", "id", "Indiv")
  others <- paste0("^(best_)?(parent[12]|father|mother)(_runner_up|_reported)?$|^candidate[12]$|",
                   "^worst_locus[12]$|^(entered|names|group|dam|sire|Dam|Sire|dadid|momid)$")
  # In the summary of parents and in simulations "offspring" is a number.
  names_first <- names(read)[1] %in% always
  for (k in seq_along(read)) {
    if (k == 1 && names_first) {
      next
    }
    if (grepl(others, names(read)[k])) {
      read[[k]][read[[k]] == "NA"] <- NA
    } else {
      read[[k]] <- utils::type.convert(read[[k]], na.strings = "NA", as.is = TRUE)
    }
  }
  read
}
