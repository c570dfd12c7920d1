# Draws the figures of figures.txt in a folder as a user of R would, 900 x 600, and prints the seconds that it took,
# elapsed and of the processor.
folder <- commandArgs(trailingOnly = TRUE)[1]
points <- read.table(file.path(folder, "figures.txt"),
                     col.names = c("figure", "kind", "series", "x", "y"), stringsAsFactors = FALSE)
figures <- split(points, points$figure)
colours <- c("#0072B2", "#D55E00", "#009E73")

draw <- function(number) {
  figure <- figures[[as.character(number)]]
  kind <- figure$kind[1]
  first <- figure[figure$series == 1, ]
  title <- paste("Figure", number, "of a Collection")
  label <- if (kind == "proportions") "Age" else "Year"
  png(file.path(folder, paste0("r", number, ".png")), 900, 600, type = "cairo")
  if (kind == "residuals") {
    barplot(first$y, names.arg = first$x, col = colours[1], main = title, xlab = label, las = 1)
    box()
  } else {
    plot(figure$x, figure$y, type = "n", main = title, xlab = label, ylab = "", las = 1)
    grid()
    observed <- kind != "bands"
    for (s in rev(unique(figure$series))) {
      one <- figure[figure$series == s, ]
      if (observed && s == 1) points(one$x, one$y, pch = 19, col = colours[s])
      else if (observed) lines(one$x, one$y, lwd = 2, col = colours[s])
      else lines(one$x, one$y, type = "o", pch = 14 + s, lwd = 2, col = colours[s])
    }
    legend("topright", paste("Series", unique(figure$series)), col = colours, lwd = 2, bg = "white")
  }
  dev.off()
}

time <- system.time(for (number in seq_along(figures)) draw(number))
cat(time[["elapsed"]], time[["user.self"]] + time[["sys.self"]], fill = TRUE)
