# Draws the file "figures" of report.py, one block for each panel, into the file "page".
set terminal svg size 900,380 font "sans-serif,13" background "white"
set output page
set multiplot layout 1,2
set key left top
set grid lc rgb "#dddddd"
set xrange [0:*]
set yrange [0:*]

set title "One walk over the bus"
set xlabel "devices"
set ylabel "times the cost with 1 device"
plot figures index 0 using 1:4 with lines lc rgb "#999999" title "straight line", \
     figures index 0 using 1:3 with points pt 7 ps 0.7 lc rgb "#1f77b4" title "time", \
     figures index 0 using 1:2 with points pt 2 ps 0.9 lc rgb "#d62728" title "system calls"

set title "A stored level sent again, 64 devices"
set xlabel "mixers among them"
set ylabel "times the cost with 1 mixer"
plot figures index 1 using 1:4 with lines lc rgb "#999999" title "straight line", \
     figures index 1 using 1:3 with points pt 7 ps 0.7 lc rgb "#1f77b4" title "time", \
     figures index 1 using 1:2 with points pt 2 ps 0.9 lc rgb "#d62728" title "system calls"
unset multiplot
