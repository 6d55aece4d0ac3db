# Cancel in the exit question leaves everything as it was.
click frmMDI.lblRunMode(2)
close frmMDI
expect box アプリケーションを終了します。よろしいですか？
click frmMDI.lblRunMode(0)
expect error
answer cancel
expect frmMDI.Visible True
expect frmHard.Visible True
expect runMode 2
expect frmMDI.timTick.Interval 300
set chk1LedTimer 100
wait 300
expect chk1LedTimer 99
#prints error: the message box "ZELVS終了確認" is open
