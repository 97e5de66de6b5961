// x
int main()
{
    return 0;
}
