#status 1
# An expectation that does not hold is told with both values.
expect runMode 1
expect frmMDI.Caption ZELVS
expect peek 0x580 06
expect error
#prints FAILED runMode: expected 1, is 0
#prints FAILED frmMDI.Caption: expected "ZELVS", is "ZEL-VS"
#prints FAILED peek 0x580: expected 06, is 05
#prints FAILED error: expected a refusal, is none
