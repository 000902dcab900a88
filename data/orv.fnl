# Fonts by short name: a font file of this directory, or "#" and a font of the device. In a device
# font "{N}" stands for a size of N tenths of the text height.
modern      modern.fnt
bold        bold.fnt
italic      italic.fnt
boldital    boldital.fnt
roman       modern.fnt
fixed       #fixed
courier     #-*-courier-medium-r-normal--{13}-*-*-*-*-*-iso8859-1
courierb    #-*-courier-bold-r-normal--{13}-*-*-*-*-*-iso8859-1
helvetica   #-*-helvetica-medium-r-normal--{13}-*-*-*-*-*-iso8859-1
helveticab  #-*-helvetica-bold-r-normal--{13}-*-*-*-*-*-iso8859-1
times       #-*-times-medium-r-normal--{14}-*-*-*-*-*-iso8859-1
