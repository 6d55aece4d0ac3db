# OK in the exit question ends the program: nothing behind it is read.
expect frmMDI.Visible True
close frmMDI
box
answer ok
expect runMode 99
#prints ZELVS終了確認 | アプリケーションを終了します。よろしいですか？ | ok cancel
