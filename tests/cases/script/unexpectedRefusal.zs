#status 1
# One refusal that nobody expected decides the status.
expect runMode 0
jump
expect runMode 0
#prints error: unknown command: jump
