# Turns the console's answers of the example run into a table for reading. Each result line that holds a value is one
# of those that the script asked for, in its order: objective function, biomass, recruitment, F, two flags.
function read_cells(line, into_value, value_column, into_sd, sd_column,    count, i, rows, parts) {
  sub(/^\{"value":\[\[/, "", line)
  sub(/\]\]\}$/, "", line)
  count = split(line, rows, /\],\[/)
  for (i = 2; i <= count; i++) {
    split(rows[i], parts, /","/)
    gsub(/"/, "", parts[1])
    gsub(/"/, "", parts[value_column])
    gsub(/"/, "", parts[sd_column])
    into_value[parts[1]] = parts[value_column]
    into_sd[parts[1]] = parts[sd_column]
    if (asked == 2) year[++years] = parts[1]
  }
}
/^\{"message":/ {
  text = $0
  sub(/^\{"message":\{"text":"/, "", text)
  sub(/","title".*/, "", text)
  gsub(/\\r\\n/, " / ", text)
  print "  " text
}
/^\{"message":\{"text":"Plot Collection Has Completed/ { collected = 1 }
/^\{"(error|refused)":/ { print "  " $0; failed = 1 }
/^\{"value":/ {
  asked++
  if (asked == 1) { objective = $0; gsub(/^\{"value":"|"\}$/, "", objective) }
  if (asked == 2) read_cells($0, ssb, 4, ssb_sd, 5)
  if (asked == 3) read_cells($0, rec, 2, rec_sd, 3)
  if (asked == 4) read_cells($0, f, 2, f_sd, 3)
  if (asked == 5) run_ok = ($0 ~ /-1/)
  if (asked == 6) std_read = ($0 ~ /-1/)
}
END {
  if (!run_ok) { print "The run did not end with results; the messages above say why."; exit 1 }
  print ""
  print "North Sea cod, " year[1] " to " year[years]
  print "Objective function value: " objective
  print ""
  printf "%6s %26s %26s %20s\n", "", "Spawning biomass (mt)", "Recruitment (1000s)", "Average F"
  printf "%6s %15s %10s %15s %10s %10s %9s\n", "Year", "estimate", "std dev", "estimate", "std dev", "estimate", "std dev"
  for (i = 1; i <= years; i++) {
    y = year[i]
    printf "%6s %15.0f %10.0f %15.0f %10.0f %10.4f %9.4f\n", y, ssb[y], ssb_sd[y], rec[y], rec_sd[y], f[y], f_sd[y]
  }
  print ""
  print "StdFileRead: " (std_read ? "true" : "false")
  print "Case:    " folder "/cod.ctl, cod.dat, cod.pin"
  print "Results: " folder "/cod.rep, cod.std, cod.par (and cod.log, empty for a clean run)"
  if (collected) print "Plots:   " folder "/cod_plots.html, one page with all figures"
  if (failed || !std_read || !collected) exit 1
}
