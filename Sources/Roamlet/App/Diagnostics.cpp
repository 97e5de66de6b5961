// x
int uix;
