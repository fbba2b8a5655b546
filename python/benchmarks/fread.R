# What reading the rows of a file takes in R: fread.R FILE LINES_IN_FRONT prints the seconds of
# processor time and on the clock, and the kilobytes of memory, for compare_reading.py.
suppressPackageStartupMessages(library(data.table))

arguments <- commandArgs(trailingOnly = TRUE)
path <- arguments[1]
lines <- as.integer(arguments[2])

kilobytes <- function(what) {
  status <- readLines("/proc/self/status")
  as.numeric(gsub("[^0-9]", "", grep(paste0("^", what, ":"), status, value = TRUE)))
}

# It knows no comments: of motion, another program leaves out the lines between the segments.
read <- function() {
  if (endsWith(path, ".trc")) {
    return(fread(path, sep = "\t", skip = lines, header = FALSE))
  }
  rows <- sprintf("tail -n +%d %s | grep -v '^\\['", lines + 1L, shQuote(path))
  fread(cmd = rows, sep = "\t", header = FALSE)
}

before <- kilobytes("VmRSS")
begin <- proc.time()
table <- read()
took <- proc.time() - begin
cat(sum(took[-3]), took[3], kilobytes("VmHWM") - before, "\n")
