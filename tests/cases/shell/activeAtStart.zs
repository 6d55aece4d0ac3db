# The window that the start showed last has the user's attention, whatever the desktop turned to meanwhile.
move frmHard.picQVT(0)
forms
#prints frmHint visible active
#prints frmRegister visible
expect frmHint.Visible True
