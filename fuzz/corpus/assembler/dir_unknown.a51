#was
# BYTE X
#  bit Y
#
##
