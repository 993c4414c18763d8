gdbus emit --session --object-path /com/orvikaudio/Setup \
  --signal com.orvikaudio.Setup.Changed \
  "'TRX-SELVA BoostLevel Change'" "{'ProductID': 11, 'Index': 2}"
